#pragma once

#include "WyWidgets/wycontrol/WyToast.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

namespace WyTest {

/// The children of a toast, found by their places in the tree.
struct ToastParts
{
    explicit ToastParts(const WyWidgets::WyToast* toast)
    {
        body = toast->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
        for (int i = 1; i <= 5; ++i)
            layers += toast->findChild<QWidget*>(QStringLiteral("toast-drop-shadow-layer-%1").arg(i));
        const QList<QTimer*> timers = toast->findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
        durationTimer = timers.value(0);
        barTimer = timers.value(1);
        effect = qobject_cast<QGraphicsOpacityEffect*>(toast->graphicsEffect());
        const QList<QWidget*> inBody = body->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        closeButton = qobject_cast<QPushButton*>(inBody.value(0));
        title = qobject_cast<QLabel*>(inBody.value(1));
        text = qobject_cast<QLabel*>(inBody.value(2));
        icon = qobject_cast<QPushButton*>(inBody.value(3));
        separator = inBody.value(4);
        barContainer = inBody.value(5);
        const QList<QWidget*> bars =
            barContainer->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        bar = bars.value(0);
        chunk = bars.value(1);
    }

    QLabel* body;
    QList<QWidget*> layers;
    QGraphicsOpacityEffect* effect;
    QPushButton* closeButton;
    QLabel* title;
    QLabel* text;
    QPushButton* icon;
    QWidget* separator;
    QWidget* barContainer;
    QWidget* bar;
    QWidget* chunk;
    QTimer* durationTimer;
    QTimer* barTimer;
};

/// Carries out what deleteLater() and queued calls have left to do.
inline void flushDeletions()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Back to the state of a fresh process.
inline void resetToasts()
{
    WyWidgets::WyToast::reset();
    flushDeletions();
}

} // namespace WyTest

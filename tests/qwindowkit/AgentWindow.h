#pragma once

#include <QWKWidgets/widgetwindowagent.h>

#include "support/Events.h"
#include "support/RealInput.h"
#include "support/WindowDragging.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWindow>
#include <QtTest>

constexpr QRect kStart(300, 200, 400, 300);
/// A place of the screen that no window covers.
constexpr QPoint kAway(5, 5);
constexpr int kTitleBarHeightPx = 48;

/// Notes the mouse buttons that reach it.
class Recorder : public QWidget
{
public:
    using QWidget::QWidget;
    QStringList events;

    bool note(const QEvent* event)
    {
        static const QHash<int, QString> names = {
            {QEvent::MouseButtonPress, QStringLiteral("press")},
            {QEvent::MouseButtonRelease, QStringLiteral("release")},
            {QEvent::MouseButtonDblClick, QStringLiteral("double click")},
        };
        if (!names.contains(event->type()))
            return false;
        const bool isMiddle = static_cast<const QMouseEvent*>(event)->button() == Qt::MiddleButton;
        events += (isMiddle ? QStringLiteral("middle ") : QString()) + names.value(event->type());
        return true;
    }
    /// Watches another object without taking its events.
    bool eventFilter(QObject*, QEvent* event) override
    {
        note(event);
        return false;
    }

protected:
    bool event(QEvent* event) override { return note(event) || QWidget::event(event); }
};

/// A window with an agent, a title bar that holds a button in its left part, and a content below.
class AgentWindow : public QWidget
{
public:
    explicit AgentWindow(Qt::WindowFlags flags = Qt::Window)
        : QWidget(nullptr, flags),
          titleBar(new Recorder(this)),
          button(new QPushButton(QStringLiteral("B"), titleBar)),
          content(new Recorder(this)),
          agent(new QWK::WidgetWindowAgent(this))
    {
        titleBar->setFixedHeight(kTitleBarHeightPx);
        button->setFixedSize(40, 24);
        auto* bar = new QHBoxLayout(titleBar);
        bar->addWidget(button);
        bar->addStretch();
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(0);
        column->addWidget(titleBar);
        column->addWidget(content, 1);
        setGeometry(kStart);
        agent->setup(this);
        agent->setTitleBar(titleBar);
    }

    bool open() { return WyTest::RealInput::showAndActivate(this); }

    QPoint onTitleBar() const { return mapToGlobal(QPoint(width() / 2, kTitleBarHeightPx / 2)); }
    QPoint onButton() const { return WyTest::centreOf(button); }
    QPoint onContent() const { return WyTest::centreOf(content); }
    Qt::CursorShape pointerShape() const { return windowHandle()->cursor().shape(); }

    Recorder* titleBar;
    QPushButton* button;
    Recorder* content;
    QWK::WidgetWindowAgent* agent;
};

using WyTest::doubleClick;
using WyTest::dragBy;
using WyTest::OnEvent;

/// Clicks the content and sees the click arrive, after all that was asked of the window manager before: no
/// button is held.
#define WY_VERIFY_CONTENT_TAKES_CLICKS(window)                                                               \
    do {                                                                                                     \
        WyTest::RealInput::click((window).onContent(), Qt::MiddleButton);                                    \
        QTRY_VERIFY((window).content->events.contains("middle release"));                                    \
        (window).content->events.clear();                                                                    \
        WyTest::RealInput::click((window).onContent());                                                      \
        QTRY_COMPARE((window).content->events, QStringList({"press", "release"}));                           \
    } while (false)

using Preparation = void (*)(AgentWindow&);
Q_DECLARE_METATYPE(Preparation)

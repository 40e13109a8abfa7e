#include "RingLabel.h"
#include "Window.h"

#include <WyWidgets/WyShadowWidget.h>
#include <WyWidgets/WyWidgetUtils.h>

#include <QLayout>
#include <QLineEdit>
#include <QPropertyAnimation>

using namespace WyWidgets;

QObject* Window::stylingState()
{
    //! [styling-state]
    // QLineEdit[problem="true"] { border-color: #BA2626; }
    auto* address = new QLineEdit;
    layout()->addWidget(address);
    connect(
        address, &QLineEdit::textChanged, address, [address](const QString& text) {
            WyWidgetUtils::RefreshStyle(address, "problem", !text.contains('@'));
        });
    //! [styling-state]
    return address;
}

QObject* Window::stylingAnimation()
{
    //! [styling-animation]
    auto* card = new WyShadowWidget;
    card->setMinimumSize(200, 80);
    layout()->setContentsMargins(24, 24, 24, 24);
    layout()->addWidget(card);

    auto* glow = new QPropertyAnimation(card, "shadowColor", card);
    glow->setStartValue(QColor(0, 0, 0, 60));
    glow->setEndValue(QColor(11, 102, 195, 200));
    glow->setDuration(400);
    glow->start();
    //! [styling-animation]
    return card;
}

QObject* Window::stylingOwn()
{
    //! [styling-own]
    auto* label = new RingLabel;
    label->setText(tr("Two new messages"));
    label->setAlignment(Qt::AlignCenter);
    layout()->addWidget(label);
    //! [styling-own]
    return label;
}

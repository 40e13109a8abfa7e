#include "Window.h"

#include <WyWidgets/WyAnimationButton.h>
#include <WyWidgets/WyCheckBox.h>
#include <WyWidgets/WyDotButton.h>
#include <WyWidgets/WyDotCheckBox.h>
#include <WyWidgets/WyHoverButton.h>
#include <WyWidgets/WyImageButton.h>
#include <WyWidgets/WyShadowButton.h>

#include <QLayout>

using namespace WyWidgets;

QObject* Window::animationButton()
{
    //! [WyAnimationButton]
    auto* button = new WyAnimationButton;
    button->SetAnimationSecond(tr("Send the code again"), 30);
    // Disabled for 30 s.
    connect(button, &QPushButton::clicked, button,
            &WyAnimationButton::StartAnimation);
    connect(button, &QPushButton::clicked, this, &Window::upload);
    layout()->addWidget(button);
    //! [WyAnimationButton]
    return button;
}

QObject* Window::animationButtonMore()
{
    //! [WyAnimationButton-more]
    auto* button = new WyAnimationButton;
    button->SetAnimationText(tr("Check for updates"), tr("Checking"));
    layout()->addWidget(button);
    button->StartAnimation(); // "Checking" with growing dots
    connect(this, &Window::uploaded, button, &WyAnimationButton::StopAnimation);
    //! [WyAnimationButton-more]
    return button;
}

QObject* Window::hoverButton()
{
    //! [WyHoverButton]
    auto* button = new WyHoverButton;
    button->setText(tr("Archive"));
    connect(button, &WyHoverButton::SignalEnterEvent, this, &Window::explain);
    connect(button, &WyHoverButton::SignalLeaveEvent, this,
            &Window::stopExplaining);
    layout()->addWidget(button);
    //! [WyHoverButton]
    return button;
}

QObject* Window::imageButton()
{
    //! [WyImageButton]
    auto* button = new WyImageButton(tr("Download"));
    button->setIconNormal(":/gallery/download.png");
    button->setIconDisable(":/gallery/download-disabled.png");
    layout()->addWidget(button);
    //! [WyImageButton]
    return button;
}

QObject* Window::shadowButton()
{
    //! [WyShadowButton]
    auto* button = new WyShadowButton;
    button->SetButtonText(tr("Compose"));
    button->SetButtonObjectName("compose_button");
    button->SetButtonMinimumWidth(120);
    button->SetButtonFixedHeight(40);
    button->setShadowColor(QColor(0, 0, 0, 140));
    connect(button, &WyShadowButton::SignalButtonClicked, this, &Window::compose);
    layout()->addWidget(button);
    //! [WyShadowButton]
    return button;
}

QObject* Window::dotButton()
{
    //! [WyDotButton]
    auto* button = new WyDotButton;
    button->setText(tr("News"));
    button->SetDotVisible(true); // until they are read
    connect(button, &QPushButton::clicked, button,
            [button] { button->SetDotVisible(false); });
    connect(button, &QPushButton::clicked, this, &Window::showNews);
    layout()->addWidget(button);
    //! [WyDotButton]
    return button;
}

QObject* Window::checkBox()
{
    //! [WyCheckBox]
    auto* agree = new WyCheckBox(tr("I have read the terms and the privacy notice, "
                                    "and I agree to both of them"));
    connect(agree, &QCheckBox::toggled, this, &Window::save);
    layout()->addWidget(agree);
    //! [WyCheckBox]
    return agree;
}

QObject* Window::dotCheckBox()
{
    //! [WyDotCheckBox]
    auto* box = new WyDotCheckBox;
    box->setText(tr("Show hints"));
    // No longer new.
    connect(box, &QCheckBox::toggled, box, [box] { box->SetDotVisible(false); });
    layout()->addWidget(box);
    //! [WyDotCheckBox]
    return box;
}

#include "Window.h"

#include <WyWidgets/WyGifButton.h>
#include <WyWidgets/WyGifLabel.h>
#include <WyWidgets/WyLoadBox.h>
#include <WyWidgets/WyWaitingBar.h>
#include <WyWidgets/WyWaitingSpinnerWidget.h>

#include <QFormLayout>
#include <QFrame>
#include <QLayout>
#include <QLineEdit>

using namespace WyWidgets;

QObject* Window::waitingSpinner()
{
    auto* form = new QWidget;
    auto* rows = new QFormLayout(form);
    rows->addRow(tr("Name"), new QLineEdit);
    rows->addRow(tr("Address"), new QLineEdit);
    layout()->addWidget(form);
    form->show();
    layout()->activate();
    //! [WyWaitingSpinnerWidget]
    // Centred on the form, which takes no input until it stops.
    auto* spinner = new WyWaitingSpinnerWidget(form, true, true);
    spinner->setColor(QColor("#3D8BFD"));
    spinner->start();
    connect(this, &Window::uploaded, spinner, &WyWaitingSpinnerWidget::stop);
    //! [WyWaitingSpinnerWidget]
    return spinner;
}

QObject* Window::waitingSpinnerMore()
{
    //! [WyWaitingSpinnerWidget-more]
    // Not centred: the layout decides.
    auto* spinner = new WyWaitingSpinnerWidget(this, false);
    spinner->setNumberOfLines(12);
    spinner->setLineLength(5);
    spinner->setLineWidth(2);
    spinner->setInnerRadius(4); // 18 px square
    spinner->setRevolutionsPerSecond(1.2);
    layout()->addWidget(spinner);
    spinner->start();
    //! [WyWaitingSpinnerWidget-more]
    return spinner;
}

QObject* Window::waitingBar()
{
    //! [WyWaitingBar]
    auto* bar = new WyWaitingBar;
    layout()->addWidget(bar);
    bar->start();
    connect(this, &Window::uploaded, bar, &WyWaitingBar::stop);
    //! [WyWaitingBar]
    return bar;
}

QObject* Window::gifLabel()
{
    //! [WyGifLabel]
    auto* label = new WyGifLabel;
    label->setFixedSize(32, 32);
    // Plays loading_01.png to loading_12.png of this folder.
    label->SetGif(":/gallery/busy/", 12);
    layout()->addWidget(label);
    label->start();
    //! [WyGifLabel]
    return label;
}

QObject* Window::loadBox()
{
    auto* panel = new QFrame;
    panel->setMinimumHeight(120);
    layout()->addWidget(panel);
    panel->show();
    layout()->activate();
    //! [WyLoadBox]
    auto* box = new WyLoadBox(panel);
    box->findChild<WyGifLabel*>()->SetGif(":/gallery/busy/", 12);
    box->show();
    box->AdjustParentSize(); // again whenever the panel changes its size
    box->StartLoad(true);    // masked; ends by itself after three minutes
    connect(this, &Window::uploaded, box, &QWidget::hide);
    connect(this, &Window::uploaded, box, &WyLoadBox::StopLoad);
    //! [WyLoadBox]
    return box;
}

QObject* Window::gifButton()
{
    //! [WyGifButton]
    auto* button = new WyGifButton;
    button->SetButtonText(tr("Upload"), tr("Uploading"));
    // Disabled, with a spinner.
    connect(button, &QPushButton::clicked, button, &WyGifButton::StartAnimation);
    connect(button, &QPushButton::clicked, this, &Window::upload);
    connect(this, &Window::uploaded, button, &WyGifButton::StopAnimation);
    layout()->addWidget(button);
    //! [WyGifButton]
    return button;
}

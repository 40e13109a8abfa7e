#include "Window.h"

#include <WyWidgets/WyArrowWidget.h>
#include <WyWidgets/WyBubbleButton.h>
#include <WyWidgets/WyBubbleTip.h>
#include <WyWidgets/WyBubbleWidget.h>
#include <WyWidgets/WyErrorWidget.h>
#include <WyWidgets/WyMenu.h>
#include <WyWidgets/WyPopupBox.h>
#include <WyWidgets/WyPopupWidget.h>
#include <WyWidgets/WyTipWidget.h>

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace WyWidgets;

QObject* Window::arrowWidget()
{
    //! [WyArrowWidget]
    auto* arrow = new WyArrowWidget(this);
    arrow->setText(tr("Drop files here."));
    arrow->setDerection(WyArrowWidget::Left);
    arrow->myMove(60, 90); // where the tip points to
    arrow->show();
    //! [WyArrowWidget]
    return arrow;
}

QObject* Window::tipWidget()
{
    //! [WyTipWidget]
    auto* tip = new WyTipWidget;
    tip->SetText(tr("The file was moved to the archive."));
    tip->SetLinkText(tr("Undo"), tr("Show the archive"));
    connect(tip, &WyTipWidget::SignalClickedLeftLink, this, &Window::undo);
    connect(tip, &WyTipWidget::SignalClickedRightLink, this, &Window::showArchive);
    layout()->addWidget(tip);
    layout()->setAlignment(tip, Qt::AlignTop);
    tip->StartShowAnimation(); // it deletes itself
    //! [WyTipWidget]
    return tip;
}

QObject* Window::bubbleWidget()
{
    QPushButton* button = addButton(tr("Zoom"));
    //! [WyBubbleWidget]
    auto* bubble = new WyBubbleWidget(true, this); // with a shadow
    auto* content = new QLabel(tr("Turn the wheel to zoom"));
    content->setMargin(10);
    const QMargins margins = bubble->layout()->contentsMargins();
    bubble->SetContentWidget(content, QPoint(margins.left(), margins.top()));
    bubble->setDerection(WyBubbleWidget::Left);
    bubble->setStartPos(12); // the arrow, from the top
    const QPoint target =
        button->mapToGlobal(QPoint(button->width(), button->height() / 2));
    bubble->myMove(target.x(), target.y()); // on the screen
    bubble->show();
    //! [WyBubbleWidget]
    return bubble;
}

QObject* Window::bubbleTip()
{
    QPushButton* button = addButton(tr("Share"));
    //! [WyBubbleTip]
    auto* bubble = new WyBubbleTip(this);
    bubble->SetBubbleTip(tr("Everyone with the link can read."));
    bubble->setDerection(WyBubbleTip::Bottom);
    const QPoint target = button->mapToGlobal(QPoint(button->width() / 2, 0));
    bubble->myMove(target.x(), target.y());
    bubble->show();
    //! [WyBubbleTip]
    return bubble;
}

QObject* Window::bubbleButton()
{
    //! [WyBubbleButton]
    auto* button = new WyBubbleButton;
    button->setText(tr("Send the report"));
    // First: the bubble belongs to the window that the button is in.
    layout()->addWidget(button);
    button->SetBubbleTip(tr("Sends the report to everyone in the list."));
    //! [WyBubbleButton]
    return button;
}

QObject* Window::popupWidget()
{
    QPushButton* button = addButton(tr("Columns"));
    //! [WyPopupWidget]
    auto* popup = new WyPopupWidget(this);
    // A tool-tip window: closes 200 ms after the pointer has left.
    popup->setPopup(false);
    auto* column = new QVBoxLayout(popup->findChild<QWidget*>("widget_content"));
    for (const QString& name : {tr("Name"), tr("Size"), tr("Changed")})
        column->addWidget(new QCheckBox(name));
    connect(popup, &WyPopupWidget::SignalPopupClose, this, &Window::applyColumns);
    popup->move(button->mapToGlobal(QPoint(0, button->height())));
    popup->show();
    //! [WyPopupWidget]
    return popup;
}

QObject* Window::popupBox()
{
    QPushButton* button = addButton(tr("Colour"));
    //! [WyPopupBox]
    auto* box = new WyPopupBox(this);
    auto* grid = new QGridLayout(box->findChild<QWidget*>("widget_content"));
    for (int i = 0; i < 6; ++i) {
        auto* swatch = new QPushButton;
        swatch->setFixedSize(32, 32);
        swatch->setAccessibleName(tr("Colour %1").arg(i + 1));
        swatch->setStyleSheet(QString("background: %1;")
                                  .arg(QColor::fromHsv(i * 60, 170, 220).name()));
        connect(swatch, &QPushButton::clicked, box, &QWidget::close);
        grid->addWidget(swatch, i / 3, i % 3);
    }
    box->move(button->mapToGlobal(QPoint(0, button->height())));
    box->show(); // a click outside hides it
    //! [WyPopupBox]
    return box;
}

QObject* Window::errorWidget()
{
    //! [WyErrorWidget]
    auto* address = new QLineEdit("nobody");
    auto* error = new WyErrorWidget;
    error->SetWidgetMaxWidth(300);
    layout()->addWidget(address);
    layout()->addWidget(error);
    layout()->setAlignment(error, Qt::AlignLeft);

    // when the form is sent:
    if (!address->text().contains('@')) {
        error->SetErrText(tr("That is no e-mail address."));
        error->ShowAnimation(true); // fades in, hides after five seconds
    }
    //! [WyErrorWidget]
    return error;
}

QObject* Window::errorWidgetMore()
{
    //! [WyErrorWidget-more]
    auto* error = new WyErrorWidget(this);
    error->SetWidgetFixedWidth(300); // centred text in a label of this width
    error->SetErrText(tr("The server does not answer."));
    error->ShowAnimation(false); // shown at once, until you hide it
    //! [WyErrorWidget-more]
    return error;
}

QObject* Window::menu()
{
    //! [WyMenu]
    auto* menu = new WyMenu(this);
    menu->addAction(tr("Rename"));
    menu->addAction(tr("Duplicate"));
    menu->addSeparator();
    menu->addAction(tr("Delete"), this, &Window::undo);
    menu->popup(mapToGlobal(QPoint(40, 40)));
    //! [WyMenu]
    return menu;
}

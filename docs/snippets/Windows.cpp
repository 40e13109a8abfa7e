#include "Window.h"

#include <WyWidgets/WyDialog.h>
#include <WyWidgets/WyDialogBar.h>
#include <WyWidgets/WyMainWindow.h>
#include <WyWidgets/WyMoveableFrame.h>
#include <WyWidgets/WyShadowWidget.h>
#include <WyWidgets/WyTransWidget.h>
#include <WyWidgets/WyWidgetUtils.h>
#include <WyWidgets/WyWindowBar.h>

#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTextEdit>
#include <QVBoxLayout>

using namespace WyWidgets;

QObject* Window::mainWindow()
{
    //! [WyMainWindow]
    auto* window = new WyMainWindow;
    auto* bar = new WyWindowBar(window);
    window->setMenuWidget(bar);  // above tool bars and docks
    window->registTitleBar(bar); // drag, double-click

    auto* share = new QPushButton(tr("Share"));
    bar->AddToolButton(share);
    window->registHitTestVisible(share, true); // takes its own clicks

    bar->InitSysButton();
    window->registMaxButton(bar->findChild<QPushButton*>("max_button"));
    for (const char* name : {"min_button", "max_button", "close_button"})
        window->registHitTestVisible(bar->findChild<QPushButton*>(name), true);

    window->setCentralWidget(new QTextEdit);
    window->setContentsMargins(1, 1, 1, 1); // room for the theme's border
    window->resize(560, 220);
    window->show();
    //! [WyMainWindow]
    return window;
}

QObject* Window::windowBar()
{
    //! [WyWindowBar]
    auto* bar = new WyWindowBar(this);
    // The 80 px on the left are for macOS.
    bar->layout()->setContentsMargins(16, 0, 8, 0);
    bar->AddWidgetToLeft(new QLabel(tr("Untitled document")));
    bar->AddToolButton(new QPushButton(tr("Share")));
    bar->AddSeparator();
    layout()->addWidget(bar);
    bar->InitSysButton(); // the bar is in its window now
    bar->SetChildVisible("min_button", false);
    //! [WyWindowBar]
    bar->setFixedHeight(48);
    return bar;
}

QObject* Window::dialog()
{
    //! [WyDialog]
    auto* dialog = new WyDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    auto* column = new QVBoxLayout(dialog->createContent());
    column->addWidget(dialog->GetTitleBar());
    dialog->GetTitleBar()->SetTitle(tr("Unsaved changes"));
    column->addWidget(new QLabel(tr("Three documents have changes. Keep them?")));

    auto* keep = new QPushButton(tr("Keep"));
    connect(keep, &QPushButton::clicked, dialog, &QDialog::accept);
    column->addWidget(keep, 0, Qt::AlignRight);

    dialog->ShowMask(this, false); // dims the window
    connect(dialog, &QDialog::finished, dialog, &WyDialog::SlotHideMask);
    connect(dialog, &QDialog::accepted, this, &Window::save);
    dialog->open();
    //! [WyDialog]
    return dialog;
}

QObject* Window::dialogBar()
{
    auto* dialog = new WyDialog(this);
    //! [WyDialogBar]
    auto* column = new QVBoxLayout(dialog->createContent());
    WyDialogBar* bar = dialog->GetTitleBar();
    column->addWidget(bar);
    column->addStretch();
    bar->SetTitle(tr("Preferences"));

    auto* close = new QPushButton;
    close->setObjectName("dialog_close"); // the dialog lets it take its own clicks
    close->setFixedSize(28, 28);
    close->setAccessibleName(tr("Close"));
    connect(close, &QPushButton::clicked, dialog, &QDialog::reject);
    auto* row = static_cast<QBoxLayout*>(bar->layout());
    row->addStretch();
    row->addWidget(close);
    //! [WyDialogBar]
    dialog->resize(360, 140);
    dialog->show();
    return bar;
}

QObject* Window::shadowWidget()
{
    //! [WyShadowWidget]
    auto* card = new WyShadowWidget;
    card->setShadowColor(QColor(0, 0, 0, 96));
    auto* column = new QVBoxLayout(card);
    column->setContentsMargins(24, 24, 24, 24);
    column->addWidget(new QLabel(tr("A card that stands out.")));
    layout()->setContentsMargins(24, 24, 24, 24); // the shadow shows in here
    layout()->addWidget(card);
    //! [WyShadowWidget]
    return card;
}

QObject* Window::transWidget()
{
    //! [WyTransWidget]
    auto* badge =
        new QLabel(tr("Recording"), this, Qt::Tool | Qt::FramelessWindowHint);
    badge->setAlignment(Qt::AlignCenter);
    badge->resize(160, 40);
    badge->show(); // the native window exists from here on
    WyTransWidget::SetWidgetStaysOnTop(badge, true, false);
    // Clicks go to what lies below.
    WyTransWidget::SetWidgetIgnoresMouseEvents(badge, true);
    //! [WyTransWidget]
    return badge;
}

QObject* Window::moveableFrame()
{
    //! [WyMoveableFrame]
    auto* divider = new WyMoveableFrame(WyMoveableFrame::kDirection_H, this);
    divider->setGeometry(30, 60, 240, 12); // a few pixels across are enough to grab
    divider->show();
    connect(divider, &WyMoveableFrame::SignalFrameClickeded, this,
            &Window::explain);
    //! [WyMoveableFrame]
    return divider;
}

QObject* Window::widgetUtils()
{
    //! [WyWidgetUtils]
    const QString help =
        tr("Sends the report to everyone in the list, and to you.");
    auto* button = new QPushButton(tr("Send the report"));
    button->setToolTip(WyWidgetUtils::ToolTipWrap(help, 200)); // 200 px wide
    layout()->addWidget(button);
    //! [WyWidgetUtils]
    return button;
}

QObject* Window::widgetUtilsStyle()
{
    //! [WyWidgetUtils-style]
    // With a rule in the style sheet of the application:
    // QLabel[state="done"] { color: #07BE8B; }
    auto* status = new QLabel(tr("Synchronised"));
    layout()->addWidget(status);
    WyWidgetUtils::RefreshStyle(status, "state", "done");

    // One image while enabled, one while disabled.
    auto* picture = new QLabel;
    picture->setFixedSize(24, 24);
    layout()->addWidget(picture);
    WyWidgets::updateStyle(picture, ":/gallery/download.png",
                           ":/gallery/download-disabled.png");
    //! [WyWidgetUtils-style]
    return status;
}

QObject* Window::widgetUtilsMore()
{
    const QPoint pointOnCanvas(10, 10);
    //! [WyWidgetUtils-more]
    const QPixmap canvas = WyWidgetUtils::GrabAllScreenPixMap();
    bool found = false;
    const QPoint place = WyWidgetUtils::MapToGlobal(pointOnCanvas, found);
    auto* picture = new QLabel;
    picture->setPixmap(canvas.scaledToWidth(320));
    picture->setToolTip(
        found ? tr("The point lies at %1, %2.").arg(place.x()).arg(place.y())
              : QString());
    layout()->addWidget(picture);
    //! [WyWidgetUtils-more]
    return picture;
}

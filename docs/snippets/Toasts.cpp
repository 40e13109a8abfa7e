#include "Window.h"

#include <WyWidgets/WySimpleToast.h>
#include <WyWidgets/WyToast.h>
#include <WyWidgets/WyToastWidget.h>

#include <QApplication>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

using namespace WyWidgets;

QObject* Window::toast()
{
    //! [WyToast]
    WyToast::setPosition(ToastPosition::TOP_RIGHT); // once, for all toasts

    auto* toast = new WyToast(this);
    toast->setTitle(tr("Saved"));
    toast->setText(tr("All changes are on disk."));
    toast->applyPreset(ToastPreset::SUCCESS);
    toast->setDuration(4000);
    toast->show(); // waits for its turn, and deletes itself in the end
    //! [WyToast]
    return toast;
}

QObject* Window::toastMore()
{
    //! [WyToast-more]
    auto* toast = new WyToast(this);
    toast->setTitle(tr("The printer does not answer"));
    toast->setText(tr("Check its cable, then print again."));
    toast->applyPreset(ToastPreset::ERROR_DARK);
    toast->setDuration(0); // stays until it is closed
    toast->setBorderRadius(8);
    toast->setCloseButtonAlignment(ToastButtonAlignment::MIDDLE);
    connect(toast, &WyToast::closed, this, &Window::explain);
    toast->show();
    //! [WyToast-more]
    return toast;
}

QObject* Window::toastSettings()
{
    //! [WyToast-settings]
    // For all toasts; those on screen glide to their new places.
    WyToast::setPosition(ToastPosition::TOP_RIGHT);
    WyToast::setMaximumOnScreen(5);
    WyToast::setSpacing(10);
    WyToast::setOffset(20, 45);
    WyToast::setFixedScreen(QGuiApplication::primaryScreen());
    //! [WyToast-settings]
    auto* toast = new WyToast(this);
    toast->show();
    return toast;
}

QObject* Window::toastIcon()
{
    //! [WyToast-icon]
    auto* toast = new WyToast(this);
    toast->setText(tr("The download is ready."));
    // A silhouette in the icon colour.
    toast->setIcon(QPixmap(":/gallery/download.png"));
    toast->setIconSize(QSize(24, 24));
    toast->setShowIcon(true);
    toast->setCloseButtonAlignment(ToastButtonAlignment::MIDDLE);
    toast->show();
    //! [WyToast-icon]
    return toast;
}

QObject* Window::toastColors()
{
    //! [WyToast-colors]
    auto* toast = new WyToast(this);
    toast->setTitle(tr("Good evening"));
    toast->setBackgroundColor(QColor("#3B2F63"));
    toast->setTitleColor(Qt::white);
    toast->setTitleFont(QFont("Arial", 12, QFont::Bold));
    toast->setBorderRadius(8);
    toast->show();
    //! [WyToast-colors]
    return toast;
}

QObject* Window::toastSize()
{
    //! [WyToast-size]
    auto* toast = new WyToast(this);
    toast->setText(
        tr("A long text that wraps to the width which the toast is given here."));
    toast->setMargins(QMargins(20, 18, 10, 18));
    toast->setFixedWidth(320); // texts wrap to fit
    toast->setMinimumHeight(120);
    toast->show();
    //! [WyToast-size]
    return toast;
}

QObject* Window::toastWidget()
{
    QPushButton* button = addButton(tr("Copy the link"));
    //! [WyToastWidget]
    const QPoint below = button->mapToGlobal(QPoint(0, button->height()));
    WyToastWidget::ShowToastText(below, tr("The link was copied."), 1500);
    //! [WyToastWidget]
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto toast =
        std::find_if(windows.begin(), windows.end(), [](QWidget* window) {
            return qobject_cast<WyToastWidget*>(window);
        });
    return toast == windows.end() ? nullptr : *toast;
}

QObject* Window::simpleToast()
{
    //! [WySimpleToast]
    auto* toast = new WySimpleToast(this); // without a parent: on the desktop
    toast->setStyle(WySimpleToast::TOASTR_SUCCESS);
    toast->setText(tr("File saved"));
    toast->setOrientation(WySimpleToast::TOASTR_TOP_CENTER);
    toast->setDuration(2000); // for all toasts from now on
    toast->show();            // it deletes itself
    //! [WySimpleToast]
    return toast;
}

QObject* Window::simpleToastMore()
{
    //! [WySimpleToast-more]
    auto* toast = new WySimpleToast(this);
    toast->setText(tr("Well done"));
    toast->setIcon(QPixmap(":/check.png"));
    toast->setBackgroundColor("#5B3FA8"); // opaque: the name brings its alpha
    toast->setTextColor("#FFE08A");
    toast->setOrientation(WySimpleToast::TOASTR_BOTTOM_LEFT);
    toast->show();
    //! [WySimpleToast-more]
    return toast;
}

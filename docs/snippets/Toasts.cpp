#include "Window.h"

#include <WyWidgets/WySimpleToast.h>
#include <WyWidgets/WyToast.h>
#include <WyWidgets/WyToastWidget.h>

#include <QApplication>
#include <QPushButton>

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

QObject* Window::toastWidget()
{
    QPushButton* button = addButton(tr("Copy the link"));
    //! [WyToastWidget]
    const QPoint below = button->mapToGlobal(QPoint(0, button->height()));
    WyToastWidget::ShowToastText(below, tr("The link was copied."), 1500);
    //! [WyToastWidget]
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto toast = std::find_if(windows.begin(), windows.end(),
                                    [](QWidget* window) { return qobject_cast<WyToastWidget*>(window); });
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

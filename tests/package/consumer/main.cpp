// A host that uses an installed WyWidgets: headers by folder and flat, one class of each subsystem, the
// toast's files.
#include <WyWidgets/WyShadowWidget.h>
#include <WyWidgets/WyToast.h>
#include <WyWidgets/layout/WyFlowLayout.h>

#include <QApplication>
#include <QTextStream>

#include <cstdio>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    WyWidgets::WyShadowWidget widget;
    new WyWidgets::WyFlowLayout(&widget);
    WyWidgets::WyToast toast;
    toast.applyPreset(WyWidgets::ToastPreset::SUCCESS);
    QTextStream(stdout) << "icon " << toast.getIcon().width() << " sheet " << toast.styleSheet().size()
                        << '\n';
    return toast.getIcon().isNull() || toast.styleSheet().isEmpty() ? 1 : 0;
}

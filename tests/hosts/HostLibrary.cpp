// A library of a host, loaded beside another one that is made of the same source.
#include "WyWidgets/wycontrol/WyFlatTab.h"
#include "WyWidgets/wycontrol/WyToast.h"

#include <QWidget>

namespace {

const QString kName = QStringLiteral(WY_HOST);

} // namespace

/// A window with a control of the library; the caller deletes it.
extern "C" Q_DECL_EXPORT QWidget* hostWindow()
{
    auto* window = new QWidget;
    window->setObjectName(kName);
    auto* tabs = new WyWidgets::WyFlatTab(window);
    tabs->AddTab(kName);
    return window;
}

extern "C" Q_DECL_EXPORT void hostShowToast(QWidget* window)
{
    auto* toast = new WyWidgets::WyToast(window);
    toast->setTitle(kName);
    toast->setDuration(0);
    toast->show();
}

#include "WyWidgets/internal/widgets/SettledLayout.h"

#include "WyWidgets/internal/widgets/GuardedList.h"

#include <QLayout>
#include <QWidget>

namespace WyWidgets {

namespace {

/// A layout hears of changes in the layouts of its children only when those are activated: deepest first.
void activateChildLayouts(QWidget* widget)
{
    // What gets another size runs code of the host, which may delete what stands beside it.
    for (const QPointer<QWidget>& child :
         guarded(widget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))) {
        if (!child || child->isWindow())
            continue;
        activateChildLayouts(child);
        if (child && child->layout())
            child->layout()->activate();
    }
}

/// The size that a widget takes when it is shown, unless somebody has given it one.
void takeInitialSize(QWidget* widget)
{
    const bool sizesItself =
        widget->isWindow() || !widget->parentWidget() || !widget->parentWidget()->layout();
    if (widget->isVisible() || widget->testAttribute(Qt::WA_Resized) || !sizesItself)
        return;
    widget->adjustSize();
    widget->setAttribute(Qt::WA_Resized, false);
}

} // namespace

void settleLayout(QWidget* widget)
{
    widget->ensurePolished();
    activateChildLayouts(widget);
    takeInitialSize(widget);
    if (QLayout* layout = widget->layout()) {
        layout->activate();
        layout->setGeometry(widget->contentsRect()); // a hidden widget puts this off until it is shown
    }
}

} // namespace WyWidgets

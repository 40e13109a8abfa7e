#include "WyWidgets/internal/widgets/LayoutWatcher.h"

#include <QEvent>
#include <QWidget>

namespace WyWidgets {

LayoutWatcher::LayoutWatcher(QWidget* widget, std::function<void()> settled)
    : QObject(widget), m_settled(std::move(settled))
{
    widget->installEventFilter(this);
}

bool LayoutWatcher::eventFilter(QObject* watched, QEvent* event)
{
    // Qt activates the layout before it hands out either event, but only while the widget is visible.
    const bool mayHaveSettled = event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show;
    if (mayHaveSettled && static_cast<QWidget*>(watched)->isVisible())
        m_settled();
    return false;
}

} // namespace WyWidgets

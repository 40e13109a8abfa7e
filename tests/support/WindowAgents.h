#pragma once

#include <QWKWidgets/widgetwindowagent.h>

namespace WyTest {

/// The window agents among the object's direct children, in the order of their creation. Found by class name:
/// an agent inside the library is registered apart from the test's own copy of the class.
inline QList<QWK::WidgetWindowAgent*> agentsOf(const QObject* window)
{
    QList<QWK::WidgetWindowAgent*> agents;
    const QObjectList& children = window->children();
    for (QObject* child : children) {
        if (child->inherits("QWK::WidgetWindowAgent"))
            agents += static_cast<QWK::WidgetWindowAgent*>(child);
    }
    return agents;
}

} // namespace WyTest

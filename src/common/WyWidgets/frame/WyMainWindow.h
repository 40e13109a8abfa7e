#pragma once

#include "WyWidgets/WyExport.h"

#include <QMainWindow>
#include <QPointer>

namespace QWK {
class WidgetWindowAgent;
}

namespace WyWidgets {

/// A main window without the native frame: the host supplies the title bar, for instance a WyWindowBar.
///
/// Put the bar into the window (QMainWindow::setMenuWidget() keeps it above tool bars and docks), then
/// register it. From then on it drags the window, a double-click on it maximises, and the borders resize.
/// Interactive children of the bar must be registered as hit-test visible, or they get no clicks.
class WYWIDGETS_EXPORT WyMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// A window without content whose frame a window agent takes over.
    explicit WyMainWindow(QWidget* parent = nullptr);

    /// Creates a window agent, owned by the window, and lets it take over the frame. The constructor has done
    /// so already; a second call adds another agent, which the operations below then use.
    void installWindowAgent();
    /// Makes the widget the area that drags the window. Null is ignored. Replacing one bar by another forgets
    /// the maximise button and the hit-test-visible widgets.
    void registTitleBar(QWidget* titleBar); // spelling is public interface
    /// Tells the window system which widget maximises the window. Null is ignored.
    void registMaxButton(QWidget* button); // spelling is public interface
    /// Lets a child of the title bar receive the mouse itself (true) or be a part of the draggable area
    /// (false). Null is ignored.
    void registHitTestVisible(QWidget* widget, bool visible); // spelling is public interface
    /// Shows or hides the window system's own buttons, where it draws some (macOS).
    void setSystemButtonsVisible(bool visible);

private:
    QPointer<QWK::WidgetWindowAgent> m_agent;
};

} // namespace WyWidgets

#pragma once

#include "WyWidgets/internal/platform/WindowDrag.h"

#include <QPoint>
#include <QPointer>

class QMouseEvent;
class QWidget;

namespace QWK {

class TitleBarArea;
class WindowFrame;

/// Answers mouse buttons on the title bar and on the borders of a window.
class FrameMouse
{
public:
    FrameMouse(WindowFrame& frame, QWidget* window, const TitleBarArea& titleBarArea);

    /// Takes a press, double-click, move or release at this position of the window; true if it is not for the
    /// widgets.
    bool handle(QMouseEvent* event, QPoint pos);
    /// Forgets buttons whose release went elsewhere, as after a move by the window manager.
    void reset();

private:
    bool press(QMouseEvent* event, QPoint pos);
    bool pressLeft(QPoint pos);
    bool doubleClick(QMouseEvent* event, QPoint pos);
    bool release(QMouseEvent* event);
    void toggleMaximized();

    WindowFrame& m_frame;
    QWidget* m_window;
    const TitleBarArea& m_titleBarArea;
    /// Buttons whose press was handled; what follows up to their release is handled too.
    Qt::MouseButtons m_held;
    QPointer<WyWidgets::WindowDrag> m_drag;
};

} // namespace QWK

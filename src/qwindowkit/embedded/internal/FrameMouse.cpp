#include "internal/FrameMouse.h"

#include "internal/ResizeBorder.h"
#include "internal/TitleBarArea.h"
#include "internal/WindowFrame.h"
#include "internal/WindowTraits.h"

#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace QWK {

FrameMouse::FrameMouse(WindowFrame& frame, QWidget* window, const TitleBarArea& titleBarArea)
    : m_frame(frame), m_window(window), m_titleBarArea(titleBarArea)
{
}

bool FrameMouse::handle(QMouseEvent* event, QPoint pos)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        return press(event, pos);
    case QEvent::MouseButtonDblClick:
        return doubleClick(event, pos);
    case QEvent::MouseMove:
        return m_held;
    default:
        return release(event);
    }
}

void FrameMouse::reset()
{
    m_held = Qt::NoButton;
    delete m_drag;
}

bool FrameMouse::press(QMouseEvent* event, QPoint pos)
{
    m_held &= event->buttons() & ~Qt::MouseButtons(event->button());
    delete m_drag;
    if (event->button() == Qt::LeftButton) {
        if (!pressLeft(pos))
            return false;
    } else if (event->button() != Qt::RightButton || !m_titleBarArea.isDraggable(m_window, pos)) {
        return false;
    }
    m_held |= event->button();
    if (event->button() == Qt::RightButton)
        emit m_frame.systemMenuRequested(event->globalPos());
    return true;
}

bool FrameMouse::pressLeft(QPoint pos)
{
    const Qt::Edges edges = resizableEdgesAt(m_window, pos);
    if (!edges && !m_titleBarArea.isDraggable(m_window, pos))
        return false;
    if (edges || !m_window->isFullScreen())
        m_drag = WyWidgets::WindowDrag::prepare(m_window->windowHandle(), edges);
    return true;
}

bool FrameMouse::doubleClick(QMouseEvent* event, QPoint pos)
{
    const bool isHandled = m_held & event->button();
    if (isHandled && event->button() == Qt::LeftButton && !resizableEdgesAt(m_window, pos)) {
        delete m_drag;
        toggleMaximized();
    }
    return isHandled;
}

bool FrameMouse::release(QMouseEvent* event)
{
    const bool isHandled = m_held & event->button();
    m_held &= ~Qt::MouseButtons(event->button());
    return isHandled;
}

void FrameMouse::toggleMaximized()
{
    if (m_window->isFullScreen() || !canMaximize(m_window))
        return;
    if (m_window->isMaximized())
        m_window->showNormal();
    else
        m_window->showMaximized();
}

} // namespace QWK

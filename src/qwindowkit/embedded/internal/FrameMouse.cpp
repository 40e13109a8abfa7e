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
        return doubleClick(event);
    case QEvent::MouseMove:
        return move(event);
    case QEvent::MouseButtonRelease:
        return release(event);
    default:
        return false;
    }
}

void FrameMouse::reset()
{
    m_held = Qt::NoButton;
    m_isMovePending = false;
}

bool FrameMouse::press(QMouseEvent* event, QPoint pos)
{
    m_held &= event->buttons() & ~Qt::MouseButtons(event->button());
    m_isMovePending = false;
    if (event->button() == Qt::LeftButton) {
        if (!pressLeft(event->globalPos(), pos))
            return false;
    } else if (event->button() != Qt::RightButton || !m_titleBarArea.isDraggable(m_window, pos)) {
        return false;
    }
    m_held |= event->button();
    if (event->button() == Qt::RightButton)
        emit m_frame.systemMenuRequested(event->globalPos());
    return true;
}

bool FrameMouse::pressLeft(QPoint globalPos, QPoint pos)
{
    if (const Qt::Edges edges = resizableEdgesAt(m_window, pos)) {
        m_window->windowHandle()->startSystemResize(edges);
        return true;
    }
    if (!m_titleBarArea.isDraggable(m_window, pos))
        return false;
    // The window manager keeps the release of a button that moves a window, so a mere click must not start.
    m_isMovePending = true;
    m_pressPos = globalPos;
    return true;
}

bool FrameMouse::doubleClick(QMouseEvent* event)
{
    const bool isHandled = m_held & event->button();
    if (event->button() == Qt::LeftButton && m_isMovePending) {
        m_isMovePending = false;
        toggleMaximized();
    }
    return isHandled;
}

bool FrameMouse::move(QMouseEvent* event)
{
    if (m_isMovePending && event->globalPos() != m_pressPos) {
        m_isMovePending = false;
        if (!m_window->isFullScreen())
            m_window->windowHandle()->startSystemMove();
    }
    return m_held;
}

bool FrameMouse::release(QMouseEvent* event)
{
    const bool isHandled = m_held & event->button();
    m_held &= ~Qt::MouseButtons(event->button());
    m_isMovePending = m_isMovePending && m_held.testFlag(Qt::LeftButton);
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

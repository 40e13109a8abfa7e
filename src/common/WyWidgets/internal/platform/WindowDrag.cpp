#include "WyWidgets/internal/platform/WindowDrag.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QWindow>

namespace WyWidgets {

WindowDrag* WindowDrag::prepare(QWindow* window, Qt::Edges edges)
{
    const bool isPressed = QGuiApplication::mouseButtons() & Qt::LeftButton;
    if (!window || !window->isVisible() || !isPressed)
        return nullptr;
    delete window->findChild<WindowDrag*>(QString(), Qt::FindDirectChildrenOnly);
    return new WindowDrag(window, edges);
}

WindowDrag::WindowDrag(QWindow* window, Qt::Edges edges) : QObject(window), m_window(window), m_edges(edges)
{
    // A press on a child window makes the moves go there too.
    qApp->installEventFilter(this);
}

WindowDrag::~WindowDrag()
{
    releaseMouse();
}

bool WindowDrag::eventFilter(QObject* watched, QEvent* event)
{
    const bool isMove = event->type() == QEvent::MouseMove;
    if (!watched->isWindowType() || (!isMove && event->type() != QEvent::MouseButtonRelease))
        return false;
    if (!isMove || static_cast<QMouseEvent*>(event)->buttons() == Qt::NoButton)
        end();
    else if (watched == m_window)
        begin();
    else // only the pointer's place in the window itself tells the window system where the drag begins
        m_grabsMouse = m_window->setMouseGrabEnabled(true);
    return false;
}

void WindowDrag::begin()
{
    end();
    if (m_edges)
        m_window->startSystemResize(m_edges);
    else
        m_window->startSystemMove();
}

void WindowDrag::end()
{
    qApp->removeEventFilter(this);
    releaseMouse();
    deleteLater();
}

void WindowDrag::releaseMouse()
{
    if (m_grabsMouse && m_window)
        m_window->setMouseGrabEnabled(false);
    m_grabsMouse = false;
}

} // namespace WyWidgets

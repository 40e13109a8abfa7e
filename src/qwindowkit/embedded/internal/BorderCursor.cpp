#include "internal/BorderCursor.h"

#include "internal/ResizeBorder.h"

#include <QCoreApplication>
#include <QMouseEvent>

namespace QWK {

BorderCursor::~BorderCursor()
{
    restore();
}

bool BorderCursor::enter(QWindow* window, Qt::Edges edges)
{
    restore();
    if (edges)
        show(window, edges);
    return m_window;
}

bool BorderCursor::hover(QWindow* window, Qt::Edges edges, const QMouseEvent* event)
{
    if (edges) {
        if (m_window != window) {
            restore();
            const QPointer<QWindow> windowGuard(window);
            const QPointer<BorderCursor> guard(this);
            QEvent leave(QEvent::Leave);
            QCoreApplication::sendEvent(window, &leave);
            if (!windowGuard || !guard) // a handler has ended the window or its agent
                return true;
        }
        show(window, edges);
    } else if (m_window) {
        restore();
        QEnterEvent enter(event->localPos(), event->windowPos(), event->screenPos());
        QCoreApplication::sendEvent(window, &enter);
    }
    return edges != Qt::Edges();
}

bool BorderCursor::leave()
{
    const bool wasOnBorder = m_window;
    restore();
    return wasOnBorder;
}

void BorderCursor::restore()
{
    // A pointer that the window was given meanwhile stays.
    if (m_window && m_window->cursor() == m_shown) {
        if (m_own.shape() == Qt::ArrowCursor)
            m_window->unsetCursor(); // a child window takes its parent's
        else
            m_window->setCursor(m_own);
    }
    m_window = nullptr;
}

void BorderCursor::show(QWindow* window, Qt::Edges edges)
{
    const QCursor cursor(resizeCursorShape(edges));
    if (m_window != window || window->cursor() != m_shown)
        m_own = window->cursor();
    m_window = window;
    if (window->cursor() != cursor)
        window->setCursor(cursor);
    m_shown = cursor;
}

} // namespace QWK

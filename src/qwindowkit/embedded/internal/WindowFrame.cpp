#include "internal/WindowFrame.h"

#include "internal/ResizeBorder.h"

#include <QApplication>
#include <QChildEvent>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace QWK {

namespace {

/// From a child window's own coordinates to those of the top-level window.
QPoint positionIn(const QWindow* topLevel, const QWindow* native, QPoint pos)
{
    for (; native != topLevel; native = native->parent())
        pos += native->position();
    return pos;
}

/// Whether all mouse events go to one widget: a popup, which a press outside closes, or a grabber.
bool isMouseTaken()
{
    return QApplication::activePopupWidget() || QWidget::mouseGrabber();
}

} // namespace

WindowFrame::WindowFrame(QWidget* window, const TitleBarArea& titleBarArea)
    : m_window(window), m_mouse(*this, window, titleBarArea)
{
    window->installEventFilter(this);
    followNativeWindow();
}

bool WindowFrame::eventFilter(QObject* watched, QEvent* event)
{
    if (auto* native = qobject_cast<QWindow*>(watched))
        return isWatched(native) && filterNativeEvent(native, event);
    if (event->type() == QEvent::WinIdChange)
        followNativeWindow();
    return false;
}

void WindowFrame::followNativeWindow()
{
    const bool isNativeWindow = m_window->isWindow() && m_window->internalWinId();
    m_native = isNativeWindow ? m_window->windowHandle() : nullptr;
    m_mouse.reset();
    m_borderCursor.restore();
    if (!m_native)
        return;
    // setWindowFlags() would hide the window and create it anew.
    m_window->overrideWindowFlags(m_window->windowFlags() | Qt::FramelessWindowHint);
    m_native->setFlag(Qt::FramelessWindowHint);
    watch(m_native);
}

void WindowFrame::watch(QWindow* native)
{
    native->installEventFilter(this);
    for (QObject* child : native->children()) {
        if (auto* window = qobject_cast<QWindow*>(child))
            watch(window);
    }
}

bool WindowFrame::isWatched(const QWindow* native) const
{
    return m_native && (native == m_native || m_native->isAncestorOf(native, QWindow::ExcludeTransients));
}

bool WindowFrame::filterNativeEvent(QWindow* native, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ChildAdded:
        if (auto* child = qobject_cast<QWindow*>(static_cast<QChildEvent*>(event)->child()))
            watch(child);
        return false;
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        break;
    default:
        return false;
    }
    if (isMouseTaken()) {
        m_mouse.reset();
        m_borderCursor.restore();
        return false;
    }
    if (event->type() == QEvent::Enter) {
        const QPoint pos = static_cast<QEnterEvent*>(event)->pos();
        return m_borderCursor.enter(native, resizableEdgesAt(m_window, positionIn(m_native, native, pos)));
    }
    if (event->type() == QEvent::Leave)
        return m_borderCursor.leave();
    return filterMouseEvent(native, static_cast<QMouseEvent*>(event));
}

bool WindowFrame::filterMouseEvent(QWindow* native, QMouseEvent* event)
{
    const QPoint pos = positionIn(m_native, native, event->pos());
    if (event->type() == QEvent::MouseMove && event->buttons() == Qt::NoButton) {
        m_mouse.reset();
        return m_borderCursor.hover(native, resizableEdgesAt(m_window, pos), event);
    }
    return m_mouse.handle(event, pos);
}

} // namespace QWK

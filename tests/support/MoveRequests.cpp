#include "support/MoveRequests.h"

#include <QWidget>

#include <X11/Xlib.h>
// Xlib's macros collide with Qt's names.
#undef None
#undef Bool
#undef Status

namespace WyTest {

namespace {

constexpr long kMoveByMouse = 8; // the direction "move" of _NET_WM_MOVERESIZE

} // namespace

struct MoveRequests::Listener
{
    Display* display = XOpenDisplay(nullptr);
    Atom request = XInternAtom(display, "_NET_WM_MOVERESIZE", False);
    Window window = 0;
    int count = 0;
};

MoveRequests::MoveRequests(const QWidget* window) : m_listener(new Listener)
{
    m_listener->window = window->internalWinId();
    XSelectInput(m_listener->display, DefaultRootWindow(m_listener->display), SubstructureNotifyMask);
    XSync(m_listener->display, False);
}

MoveRequests::~MoveRequests()
{
    XCloseDisplay(m_listener->display);
}

int MoveRequests::count()
{
    XSync(m_listener->display, False);
    while (XPending(m_listener->display) > 0) {
        XEvent event;
        XNextEvent(m_listener->display, &event);
        const XClientMessageEvent& message = event.xclient;
        if (event.type == ClientMessage && message.message_type == m_listener->request &&
            message.window == m_listener->window && message.data.l[2] == kMoveByMouse)
            ++m_listener->count;
    }
    return m_listener->count;
}

} // namespace WyTest

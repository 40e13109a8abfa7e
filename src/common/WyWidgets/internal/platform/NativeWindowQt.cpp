// The native calls where there is no AppKit: what Qt's window flags do. A flag is changed on the native
// window itself, since QWidget::setWindowFlags() would hide the window.

#include "WyWidgets/internal/platform/NativeWindow.h"

#include "WyWidgets/internal/platform/WindowDrag.h"

#include <QWidget>
#include <QWindow>

namespace WyWidgets::NativeWindow {

namespace {

void setFlag(QWidget* widget, Qt::WindowFlags flag, bool on)
{
    if (!widget)
        return;
    QWidget* window = widget->window();
    const Qt::WindowFlags others = window->windowFlags() & ~flag;
    window->overrideWindowFlags(on ? others | flag : others);
    if (QWindow* native = window->windowHandle())
        native->setFlags(on ? native->flags() | flag : native->flags() & ~flag);
}

} // namespace

void setIgnoresMouseEvents(QWidget* widget, bool ignores)
{
    setFlag(widget, Qt::WindowTransparentForInput, ignores);
}

void setLevel(QWidget* widget, Level level)
{
    setFlag(widget, Qt::WindowStaysOnTopHint, level != Level::Normal);
}

void setHasShadow(QWidget* widget, bool hasShadow)
{
    setFlag(widget, Qt::NoDropShadowWindowHint, !hasShadow);
}

void startMove(QWidget* widget)
{
    if (widget)
        WindowDrag::prepare(widget->window()->windowHandle());
}

void makeMiniaturizable(QWidget* widget)
{
    setFlag(widget, Qt::WindowMinimizeButtonHint, true);
}

} // namespace WyWidgets::NativeWindow

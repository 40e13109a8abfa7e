// The native calls on macOS: messages to the NSWindow of a widget's view, sent through the runtime's C
// functions. Messages to nil are not sent at all, so a missing view or window is harmless.

#include "WyWidgets/internal/platform/NativeWindow.h"

#include "WyWidgets/internal/platform/ObjectRuntime.h"

#include <QWidget>

namespace WyWidgets::NativeWindow {

namespace {

// NSInteger and NSUInteger on every system that this runs on.
using Integer = long;
using UnsignedInteger = unsigned long;

constexpr UnsignedInteger kMiniaturizableMask = 4;

/// Sends a message whose method takes and returns exactly these types: the runtime passes arguments as a call
/// of that very signature does. The cast is C's since objc_msgSend may be a function or, in tests, an object.
template <typename Result, typename... Arguments>
Result send(id receiver, const char* selector, Arguments... arguments)
{
    using Method = Result (*)(id, SEL, Arguments...);
    return ((Method)objc_msgSend)(receiver, sel_registerName(selector), arguments...);
}

id classNamed(const char* name)
{
    return reinterpret_cast<id>(objc_getClass(name));
}

id windowOf(QWidget* widget)
{
    const id view = widget ? reinterpret_cast<id>(widget->winId()) : nullptr;
    return view ? send<id>(view, "window") : nullptr;
}

} // namespace

void setIgnoresMouseEvents(QWidget* widget, bool ignores)
{
    if (const id window = windowOf(widget))
        send<void, BOOL>(window, "setIgnoresMouseEvents:", ignores);
}

void setLevel(QWidget* widget, Level level)
{
    if (const id window = windowOf(widget))
        send<void, Integer>(window, "setLevel:", static_cast<Integer>(level));
}

void setHasShadow(QWidget* widget, bool hasShadow)
{
    if (const id window = windowOf(widget))
        send<void, BOOL>(window, "setHasShadow:", hasShadow);
}

void startMove(QWidget* widget)
{
    const id window = windowOf(widget);
    const id event = window && NSApp ? send<id>(NSApp, "currentEvent") : nullptr;
    if (event)
        send<void, id>(window, "performWindowDragWithEvent:", event);
}

void makeMiniaturizable(QWidget* widget)
{
    const id window = windowOf(widget);
    if (!window)
        return;
    const auto mask = send<UnsignedInteger>(window, "styleMask");
    send<void, UnsignedInteger>(window, "setStyleMask:", mask | kMiniaturizableMask);
    send<void, BOOL>(window, "setOpaque:", false);
    send<void, id>(window, "setBackgroundColor:", send<id>(classNamed("NSColor"), "clearColor"));
}

} // namespace WyWidgets::NativeWindow

#pragma once

class QWidget;

/// What the library asks of a widget's native window beyond Qt's portable calls. There is one source per
/// window system; each acts on the top-level window that holds the widget and does nothing for null.
namespace WyWidgets::NativeWindow {

/// AppKit's numbers for the heights that windows stack at.
enum class Level { Normal = 0, ModalPanel = 8, PopUpMenu = 101 };

void setIgnoresMouseEvents(QWidget* widget, bool ignores);
void setLevel(QWidget* widget, Level level);
void setHasShadow(QWidget* widget, bool hasShadow);
/// Moves the window with the pointer until the pressed mouse button is released.
void startMove(QWidget* widget);
/// Lets the user minimise the window; on macOS its background becomes clear as well.
void makeMiniaturizable(QWidget* widget);

} // namespace WyWidgets::NativeWindow

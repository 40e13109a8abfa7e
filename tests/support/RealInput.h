#pragma once

#include <QPoint>

class QWidget;

namespace WyTest {

/// The middle of a widget, in global coordinates.
QPoint centreOf(const QWidget* widget);

} // namespace WyTest

/// Input that comes from the X server, not from Qt: the pointer really moves, and the window manager takes
/// part. Points are Qt global coordinates (device-independent pixels). Each call waits until the server has
/// taken it.
namespace WyTest::RealInput {

/// True on the xcb platform with the test extension; false elsewhere (then the other calls do nothing).
bool isAvailable();

void movePointer(QPoint globalPos);
/// Moves there and waits until the application sees the pointer at this place.
bool movePointerAndWait(QPoint globalPos);
/// The same for a window that may still be on its way to the screen: moves until the application sees it.
bool hover(QPoint globalPos);
/// Moves in small steps, as a hand does; window managers start a drag only after several motion events.
void dragPointer(QPoint from, QPoint to, int steps = 10);
void press(Qt::MouseButton button = Qt::LeftButton);
void release(Qt::MouseButton button = Qt::LeftButton);
void click(QPoint globalPos, Qt::MouseButton button = Qt::LeftButton);
/// Clicks the middle of a widget as soon as its window is there, which may still be on its way to the screen.
bool clickOn(const QWidget* widget);
void doubleClick(QPoint globalPos);
/// Presses or releases the key with this X keysym name ("Escape", "Tab", "a").
void key(const char* keysymName, bool down);
void tapKey(const char* keysymName);

/// Shows the widget as an active window and waits for the window manager to map, place and activate it.
bool showAndActivate(QWidget* window);

} // namespace WyTest::RealInput

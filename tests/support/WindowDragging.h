#pragma once

#include <QPoint>

#include <functional>

class QWidget;

/// Real mouse work on windows that a window manager moves and resizes. Points are Qt global coordinates.
namespace WyTest {

/// Drags so that the window follows by `distance`: it follows from the first move on, from the second if a
/// native child gets the press.
void dragBy(QPoint from, QPoint distance, int movesBefore = 1, Qt::MouseButton button = Qt::LeftButton);

/// Clicks twice, the second time when the first click is through: a busy window manager may swallow a faster
/// one. Otherwise no two clicks of a test, or of successive tests, are a double-click. `whilePressed` runs
/// before the second release.
void doubleClick(
    QWidget* window, QPoint globalPos, const std::function<void()>& whilePressed = [] {});

/// Maximizes, restores, minimizes and closes the window by clicks on its system buttons, wherever they are
/// then, and sees that it does so.
void clickThroughSystemButtons(QWidget* window);

} // namespace WyTest

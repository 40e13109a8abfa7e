#pragma once

#include <QLabel>
#include <QMargins>

namespace WyWidgets {

/// Puts the marker dot "label_dot" into the top right corner of a control (top left from right to left, with
/// the margins mirrored) and returns it. What is missing is made: the grid layout, and the dot if it is null.
/// A layout of another kind that the host has given the control is left alone; then the dot is returned as it
/// came.
QLabel* placeDot(QWidget* control, QLabel* dot, int sizePx, const QMargins& marginsPx);

} // namespace WyWidgets

#pragma once

#include <QColor>
#include <QString>

namespace WyWidgets::ToastStyle {

// The style sheets of the widgets inside a toast. Their look is part of the class: a style sheet of the
// application does not override them.

QString body(const QColor& background, int radius);
/// The pale bar that the chunk shrinks on.
QString durationBar(const QColor& color, int radius);
/// A chunk that shrinks ends square on its right.
QString durationBarChunk(const QColor& color, int radius, bool shrinks);
QString separator(const QColor& color);
QString text(const QColor& color);

} // namespace WyWidgets::ToastStyle

#pragma once

#include <QMargins>

class QLayout;

namespace WyWidgets {

/// Gives the layout of a control its margins, mirrored while the control runs from right to left. Margins
/// that the host has set since stay.
void setMirroredMargins(QLayout* layout, const QMargins& margins);

} // namespace WyWidgets

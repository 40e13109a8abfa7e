#pragma once

class QWidget;

namespace WyWidgets {

/// Gives the widget and its children the sizes and places that showing it would give them. A widget that does
/// not show yet, or whose content has just changed, has stale ones.
void settleLayout(QWidget* widget);

} // namespace WyWidgets

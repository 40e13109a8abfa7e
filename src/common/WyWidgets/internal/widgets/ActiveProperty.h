#pragma once

class QStyle;
class QWidget;

namespace WyWidgets {

/// The dynamic property that style sheets select on to tell active from inactive windows and items.
inline constexpr char kActiveProperty[] = "active";

/// Sets the property and polishes the widget through the given style, without unpolishing it before: a style
/// sheet looks at its selectors again, while what the style has set up stays.
void setActiveProperty(QWidget* widget, bool active, QStyle* style);

} // namespace WyWidgets

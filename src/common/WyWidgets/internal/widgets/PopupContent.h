#pragma once

class QWidget;

namespace WyWidgets {

/// Adds an empty panel named "widget_content" to the window and returns it; the panel fills the window.
QWidget* addPopupContent(QWidget* window);

} // namespace WyWidgets

#pragma once

class QAbstractButton;
class QWidget;

namespace WyWidgets {

// Assistive tools see a widget by an interface that Qt makes once, on the first event or question about the
// widget, and keeps. Painted and composed controls have interfaces of their own.

/// Installs these interfaces. Constructors of the classes that have one call this first, for Qt makes the
/// interface as soon as the widget gets a name; only the first call does anything.
void offerAccessibility();

/// Tells assistive tools that the tab has been selected.
void tellSelection(QAbstractButton* tab);

/// Tells assistive tools that this message has appeared by itself.
void tellAlert(QWidget* message);

} // namespace WyWidgets

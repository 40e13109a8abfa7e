#pragma once

#include <QIcon>

/// The style sheet of the whole application, and the icons that go with it.
namespace Theme {

/// "light" or "dark"; false for any other name, and nothing changes.
bool apply(const QString& name);
QString current();
/// The icon of this name in the colours of the current theme; with a look of its own for selected items if
/// the theme has one ("NAME-selected").
QIcon icon(const QString& name);

} // namespace Theme

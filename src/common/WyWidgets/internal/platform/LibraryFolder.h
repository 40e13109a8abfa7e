#pragma once

#include <QString>

namespace WyWidgets {

/// The folder that the library was loaded from; empty if the system does not tell.
QString libraryFolder();

} // namespace WyWidgets

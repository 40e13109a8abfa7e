#pragma once

#include <QString>

/// The lines of this name in the sources of docs/snippets, which a test compiles and runs; empty if there are
/// none.
QString snippet(const QString& name);

#pragma once

#include <QByteArray>
#include <QVector>

class QWidget;

namespace WyTest {

/// A widget class of the library and a function that makes one whose parts all exist.
struct LibraryWidget
{
    /// Without the namespace.
    QByteArray className;
    QWidget* (*create)();
};

/// Every widget class, some of them in more than one state. A target that uses the list compiles
/// support/LibraryWidgets.cpp among its own sources.
const QVector<LibraryWidget>& libraryWidgets();

} // namespace WyTest

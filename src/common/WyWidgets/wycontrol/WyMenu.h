#pragma once

#include "WyWidgets/WyExport.h"

#include <QMenu>

namespace WyWidgets {

/// A QMenu with a class name of its own, so that a style sheet can select it: "WyWidgets--WyMenu { … }".
class WYWIDGETS_EXPORT WyMenu : public QMenu
{
    Q_OBJECT

public:
    /// An empty menu.
    explicit WyMenu(QWidget* parent = nullptr);
};

} // namespace WyWidgets

#pragma once

#include "WyWidgets/WyExport.h"

#include <QWidget>

namespace WyWidgets {

/// Native window calls that Qt's portable interface lacks, for any widget and for itself.
///
/// Each acts on the top-level window that holds the widget; show the window, or create it with winId(),
/// first. Elsewhere than on macOS the calls do what Qt's window flags can, without hiding or moving a visible
/// window. Null does nothing.
class WYWIDGETS_EXPORT WyTransWidget : public QWidget
{
    Q_OBJECT

public:
    /// A plain widget; the functions without a widget act on its window.
    explicit WyTransWidget(QWidget* parent = nullptr);

    /// Lets mouse events through to what lies below the window.
    static void SetWidgetIgnoresMouseEvents(QWidget* widget, bool ignores);
    /// Keeps the window above others: at the level of menus if `high`, else at that of modal panels. With
    /// `onTop` false the window returns to the normal level.
    static void SetWidgetStaysOnTop(QWidget* widget, bool onTop, bool high);
    /// Switches the window system's own shadow.
    static void SetHasShadow(QWidget* widget, bool hasShadow);
    /// Moves the window with the mouse until its button is released; call it when the button has been
    /// pressed. Qt may see neither moves nor release.
    static void StartNativeSystemMove(QWidget* widget);

    /// Lets mouse events through to what lies below this window.
    void SetWidgetIgnoresMouseEvents(bool ignores);
    /// Stays on top in any case, at the level of menus if `high`, else at that of modal panels.
    void SetWidgetStaysOnTop(bool high);
    /// Switches the shadow of this window.
    void SetHasShadow(bool hasShadow);
    /// Lets the user minimise the window, whatever the argument. On macOS its background becomes clear too.
    void SetMiniaturizable(bool);
};

} // namespace WyWidgets

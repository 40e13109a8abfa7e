#pragma once

#include "WyWidgets/WyExport.h"

#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QVariant>

class QLabel;
class QWidget;

namespace WyWidgets {

/// Helpers around screens, scale, style and tooltips; static functions only.
///
/// Screens are counted from 0 in the order of QGuiApplication::screens(), read afresh on each call.
/// "Available" means the screen without menu bar and dock. The only state is the scale factor, which is read
/// once.
class WYWIDGETS_EXPORT WyWidgetUtils
{
public:
    WyWidgetUtils() = delete;

    /// A placeholder: registers nothing and returns true.
    static bool RegisterShortcuts(quint64 id, int key, const QString& name);

    /// Device pixels per device-independent pixel of the primary screen; 1.0 without one. The first call
    /// (also from within another operation that needs the scale) fixes the answer for the life of the
    /// process.
    static double GetDpiScale();

    /// Position and size multiplied by the scale, each truncated toward zero.
    static QRect ScaledRect(const QRect& rect, double scale);
    static QRectF ScaledRectF(const QRectF& rect, double scale);

    /// In device-independent pixels; a null rectangle for an index out of range.
    static QRect GetScreenGeometry(int screenIndex, bool available);
    /// The smallest rectangle around all screens, in device-independent pixels; null without screens.
    static QRect GetAllScreenGeometry(bool available);

    /// What the screen shows, in pixels (the device pixel ratio stays 1); null for an index out of range.
    ///
    /// The screen is asked for its area in global coordinates. Window systems that count from the screen's
    /// own corner have nothing there for a screen away from the origin: the picture is then transparent.
    static QPixmap GrabScreenPixMap(int screenIndex);
    /// What all screens show, on one canvas with transparency between them; null without screens.
    ///
    /// Each screen is drawn in pixels (the device pixel ratio stays 1) at its device-independent offset from
    /// the canvas's corner; MapToGlobal() and MapToParent() convert points to and from the canvas.
    static QPixmap GrabAllScreenPixMap();

    /// Converts a point of the all-screens canvas to global coordinates. `found` tells whether a screen holds
    /// it; without one the canvas's corner is added to the point.
    static QPoint MapToGlobal(const QPoint& point, bool& found);
    /// Converts a global point to the all-screens canvas.
    static QPoint MapToParent(const QPoint& point);

    /// Sets the dynamic property and lets the application's style sheet evaluate its selectors anew. Nothing
    /// happens if the widget or the name is null.
    static void RefreshStyle(QWidget* widget, const char* name, QVariant value);

    /// Breaks the text into lines of at most `width` pixels in the tooltip font, at spaces where there are
    /// any. A break replaces one character: the space, or inside a word the character at the break.
    static QString ToolTipWrap(QString text, int width);
};

/// Gives the label a border image for its enabled and one for its disabled state (style-sheet urls such as
/// ":/on.png"). Pipes, devices and images of more than 16 million pixels are left out. Nothing happens if the
/// label is null.
WYWIDGETS_EXPORT void updateStyle(QLabel* label, const QString& normalImage, const QString& disabledImage);

// Handle labels of fixed size, owned by the parent. Their object name is "label_point"; a style sheet paints
// them.

/// A corner handle, 5 x 5 px.
WYWIDGETS_EXPORT QLabel* CreatePoint(QWidget* parent);
/// A handle for the left or right edge, 4 x 21 px.
WYWIDGETS_EXPORT QLabel* CreateVPoint(QWidget* parent);
/// A handle for the top or bottom edge, 24 x 4 px.
WYWIDGETS_EXPORT QLabel* CreateHPoint(QWidget* parent);

} // namespace WyWidgets

#pragma once

#include "WyWidgets/WyExport.h"

#include <QPoint>
#include <QWidget>

class QHBoxLayout;
class QPushButton;

namespace WyWidgets {

/// A title bar: host widgets on the left, tool buttons and separators on the right, then the system buttons.
///
/// A press on the bar's free area lets the window system move the window, a double-click maximises or
/// restores it. The bar owns what it is given. It paints a style-sheet background; style sheets select
/// "label_separator" (1 x 20 px), "min_button", "max_button" (checkable; the host may check it while the
/// window is maximised) and "close_button" (32 x 32 px each), and reach the layouts as "main_layout",
/// "left_layout" and "right_layout". The left margin of 80 px leaves room for the window buttons of macOS.
class WYWIDGETS_EXPORT WyWindowBar : public QWidget
{
    Q_OBJECT

public:
    /// A bar with both areas empty and without system buttons.
    explicit WyWindowBar(QWidget* parent = nullptr);

    /// Appends to the left area, with a stretch of 0 to 65535. Null is ignored.
    void AddWidgetToLeft(QWidget* widget, int stretch = 0, Qt::Alignment alignment = Qt::Alignment());
    /// Appends to the right area. Null is ignored.
    void AddToolButton(QPushButton* button);
    /// Appends a thin vertical line to the right area.
    void AddSeparator();
    /// Shows or hides the child, however deep, with this object name. Unknown and empty names are ignored.
    void SetChildVisible(const QString& objectName, bool visible);
    /// Whether the child with this object name is on screen; false if there is none.
    bool IsChildVisible(const QString& objectName) const;
    /// Appends the minimise, maximise and close buttons. They act on the window that the bar is in at this
    /// moment, so call it when the bar is in its window. Called again, it replaces only what the host has
    /// deleted.
    void InitSysButton();

public Q_SLOTS:
    /// Restores the window if it is maximised, else maximises it; a full-screen window is maximised too.
    void toggleMaxState();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QHBoxLayout* layoutNamed(const QString& objectName) const;
    QPushButton* addSysButton(const QString& objectName, QString (*purpose)());

    // Plain state of a bar that would move its window itself. The window system does that, so nothing reads
    // it.
    [[maybe_unused]] bool m_enabled = true;
    [[maybe_unused]] bool m_pressed = false;
    [[maybe_unused]] QPoint m_pressPoint{0, 0};
};

} // namespace WyWidgets

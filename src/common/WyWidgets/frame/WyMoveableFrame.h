#pragma once

#include "WyWidgets/WyExport.h"

#include <QColor>
#include <QFrame>
#include <QLine>
#include <QPoint>

#include <array>

namespace WyWidgets {

/// A dashed divider line that the user drags inside its parent.
///
/// The frame has no size of its own: give it a geometry (a few pixels across the line are enough to grab).
/// Being dragged it stays inside its parent; a frame larger than its parent stays at 0 on that axis. A frame
/// that is a window moves freely.
class WYWIDGETS_EXPORT WyMoveableFrame : public QFrame
{
    Q_OBJECT

public:
    /// The direction of the line. It also chooses the cursor, but not the way: every frame moves on both
    /// axes.
    enum FrameDirection {
        kDirection_H = 0, ///< a horizontal line
        kDirection_V = 1, ///< a vertical line
    };
    Q_ENUM(FrameDirection)

    /// A divider in this direction.
    explicit WyMoveableFrame(FrameDirection direction, QWidget* parent = nullptr,
                             Qt::WindowFlags flags = Qt::WindowFlags());

Q_SIGNALS:
    /// The left button went down on the frame. (The spelling is public interface.)
    void SignalFrameClickeded();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QLine line() const;
    QPoint clamped(QPoint position) const;

    const FrameDirection m_direction;
    bool m_pressed = false;
    QPoint m_pressPoint;
    int m_colorSelector = 0; // nothing selects the second color yet
    std::array<QColor, 2> m_colors = {QColor(0x07, 0xbe, 0x8b), QColor(0x0a, 0x6d, 0xe1)};
};

} // namespace WyWidgets

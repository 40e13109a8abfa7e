#pragma once

#include "WyWidgets/WyExport.h"

#include <QColor>
#include <QFrame>
#include <QPointer>

#include <optional>

class QGridLayout;
class QLabel;
class QPushButton;

namespace WyWidgets {

/// A rectangle that the user moves and resizes with the mouse inside its parent, to choose a region of it.
///
/// All coordinates are the parent's; moves stop at its border. Make it a child of the picture it selects
/// from; the parent's owner deletes it, nothing else does. Style "label_point" (the handles), "label_move"
/// (the move handle of kType_Corners) and "button_close" (of kType_Close).
class WYWIDGETS_EXPORT WySelectFrame : public QFrame
{
    Q_OBJECT

public:
    /// What the frame is drawn with.
    enum FrameType : int {
        kType_Points = 0,  ///< eight point handles
        kType_Corners = 1, ///< corner brackets and a move handle in the centre
        kType_Close = 2,   ///< point handles, a close button and a dimmed interior
    };
    /// The zone under the pointer, and what a press there drags.
    enum CursorDirect : int {
        kDirect_None = 0,        ///< the interior: moves the frame
        kDirect_Top = 1,         ///< the top edge
        kDirect_Bottom = 2,      ///< the bottom edge
        kDirect_Left = 3,        ///< the left edge
        kDirect_Right = 4,       ///< the right edge
        kDirect_TopLeft = 5,     ///< the top left corner
        kDirect_BottomLeft = 6,  ///< the bottom left corner
        kDirect_BottomRight = 7, ///< the bottom right corner
        kDirect_TopRight = 8,    ///< the top right corner
    };

    /// A frame of this type, without a size.
    explicit WySelectFrame(FrameType type, QWidget* parent = nullptr,
                           Qt::WindowFlags flags = Qt::WindowFlags());

    /// Builds the handles; called by the constructor, a second call does nothing.
    void InitView();

    /// The outline's colour; starts invalid, which paints black.
    QColor FrameColor() const;
    void SetFrameColor(const QColor& color);
    /// Drawn in white in the middle of the frame; empty by default.
    QString Text() const;
    void SetText(const QString& text);
    /// Whether the frame reacts to the mouse, true by default. Disabling ends a drag.
    bool IsFrameEnabled() const;
    void SetFrameEnabled(bool enabled);

    /// With `keep`, drags keep the ratio width : height of `ratio` and refuse moves that would leave the
    /// parent or make a side shorter than 120 px. A ratio with a side of 0 or less counts as no ratio. Takes
    /// effect on the next drag step.
    void SetFrameScale(const QSize& ratio, bool keep);
    /// Shows or hides the move handle of kType_Corners; other types have none.
    void SetMoveHandleVisible(bool visible);

    /// The zone (a CursorDirect) of a point in global coordinates. Also gives the frame that zone's cursor.
    int GetCursorDirect(const QPoint& globalPos);
    /// Cuts the rectangle off at the parent's border. One that was pushed past the left or top border
    /// shrinks. Unchanged without a parent. (spelling is public interface)
    QRect GetRectVaild(QRect rect) const;

Q_SIGNALS:
    /// After each change by the mouse: the computed rectangle, and whether it was a move (else a resize).
    void SignalWindowMoved(QRect const& rect, bool bCenter);
    /// The close button of kType_Close was clicked.
    void SignalClickedClose();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void addPointHandles(QGridLayout* grid);
    void addCornerHandles(QGridLayout* grid);
    QPushButton* createCloseButton();

    void pointAt(QPoint globalPos);
    void takeOverDrag();
    void endDrag();
    bool keepsRatio() const;
    void dragTo(const QPointF& localPos);
    QRect movedRect(QPoint local) const;
    QRect freelyResizedRect(QPoint local) const;
    std::optional<QRect> ratioResizedRect(QPoint local) const;
    QRect turnedOverIfNegative(QRect rect);
    void updatePressPoint(int direction, const QPointF& pos, QPoint carried);
    QRect outlineRect() const;

    FrameType m_type;
    QColor m_frameColor;
    int m_direction = kDirect_None;
    bool m_enabled = true;
    bool m_pressed = false;
    QPointF m_pressPoint;
    int m_verticalCarry = 0;
    int m_horizontalCarry = 0;
    bool m_keepScale = false;
    QSize m_scaleSize;
    QPointer<QLabel> m_moveHandle;
    QString m_text;
};

} // namespace WyWidgets

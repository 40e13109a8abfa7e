#pragma once

#include "WyWidgets/WyExport.h"

#include <QColor>
#include <QPoint>
#include <QPointer>
#include <QWidget>

#include <memory>

class QGraphicsDropShadowEffect;

namespace WyWidgets {

struct ArrowShape;

/// A speech bubble: a frameless, translucent tool-tip window with a rounded box around a content widget and a
/// triangular arrow on one side, optionally over a shadow.
///
/// Its colours come from code or from a style sheet ("qproperty-bubbleColor", "qproperty-shadowColor");
/// without any the bubble is black. It starts hidden: give it its content, myMove() and show() it. Its owner
/// deletes it.
class WYWIDGETS_EXPORT WyBubbleWidget : public QWidget
{
    Q_OBJECT
    /// The fill of the box; a style sheet sets it with "qproperty-bubbleColor".
    Q_PROPERTY(QColor bubbleColor READ bubbleColor WRITE setBubbleColor)
    /// The colour of the shadow; a style sheet sets it with "qproperty-shadowColor".
    Q_PROPERTY(QColor shadowColor READ shadowColor WRITE setShadowColor)

public:
    /// The side of the box that the arrow sits on and points away from. (Spelling is public interface.)
    enum Derection : int {
        Left = 0,   ///< at the left side
        Right = 1,  ///< at the right side
        Top = 2,    ///< at the top
        Bottom = 3, ///< at the bottom
    };

    /// Whether the bubble can cast a shadow is decided here: setShadowColor() only gives it a colour.
    WyBubbleWidget(bool shadow, QWidget* parent);
    ~WyBubbleWidget() override;

    /// Offset of the arrow along its side in px, from the top or the left of the box; 48 at first. Repaints
    /// at once.
    void setStartPos(int startPos);
    /// Length of the arrow's base (16 at first) and distance from base to tip (8 at first) in px. Shows at
    /// the next repaint.
    void setTriangleInfo(int width, int height);
    /// Left at first; a value outside the enumeration takes the arrow away. Shows at the next repaint.
    void setDerection(Derection derection); // spelling is public interface
    /// Adds the widget to the bubble's layout, which takes ownership, and takes the size that it needs. `pos`
    /// is where myMove() takes the content to lie. An earlier content widget stays in the layout until it is
    /// deleted; a null or deleted one leaves a box without size.
    void SetContentWidget(QWidget* widget, const QPoint& pos);
    /// Moves the bubble so that the tip of the arrow lies on (x, y) of the screen, if the content lies where
    /// SetContentWidget() was told. Right before the first show, too. Without an arrow the bubble stays.
    void myMove(int x, int y);

    /// The fill; invalid (painted black) until it is set.
    QColor bubbleColor() const;
    void setBubbleColor(QColor color);
    /// Invalid (painted black) until it is set.
    QColor shadowColor() const;
    /// Stores the colour and gives it to the shadow, if there is one.
    void setShadowColor(QColor color);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    class Plate;

    ArrowShape shape(const QRectF& box) const;

    int m_startPos = 48;
    int m_triangleWidth = 16;
    int m_triangleHeight = 8;
    Derection m_derection = Left;
    QPointer<QGraphicsDropShadowEffect> m_shadowEffect;
    QPointer<QWidget> m_contentWidget;
    QPoint m_contentPos;
    QColor m_bubbleColor;
    QColor m_shadowColor;
    std::unique_ptr<Plate> m_plate;
};

} // namespace WyWidgets

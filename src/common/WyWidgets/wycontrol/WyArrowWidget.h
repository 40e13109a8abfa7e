#pragma once

#include "WyWidgets/WyExport.h"

#include <QPointer>
#include <QWidget>

class QGraphicsDropShadowEffect;
class QLabel;

namespace WyWidgets {

struct ArrowShape;

/// An explanatory panel: a white rounded box around a word-wrapped text, with a triangular arrow on one side
/// and a soft grey shadow.
///
/// Without a parent it is a frameless window, which the application does not wait for to end; with a parent
/// it is a child. A click closes (hides) it; its owner deletes it. The text label has the dynamic property
/// "class" with the value "font14px".
class WYWIDGETS_EXPORT WyArrowWidget : public QWidget
{
    Q_OBJECT

public:
    /// The side of the box that the arrow sits on and points away from. (Spelling is public interface.)
    enum Derection : int {
        Left = 0,   ///< at the left side
        Right = 1,  ///< at the right side
        Top = 2,    ///< at the top
        Bottom = 3, ///< at the bottom
    };

    /// A panel without text: a hidden window, or a child that appears with its parent.
    explicit WyArrowWidget(QWidget* parent = nullptr);

    /// Offset of the arrow along its side in px, from the top or the left of the box; 50 at first. Repaints
    /// at once.
    void setStartPos(int startPos);
    /// Length of the arrow's base (15 at first) and distance from base to tip (10 at first) in px. Shows at
    /// the next repaint.
    void setTriangleInfo(int width, int height);
    /// Left at first; a value outside the enumeration takes the arrow away. Shows at the next repaint.
    void setDerection(Derection derection); // spelling is public interface
    /// Sets the text and takes the size that it needs.
    void setText(QString text);
    /// The text set last.
    QString text();
    /// Moves the widget so that the tip of the arrow lies on (x, y): in the parent's coordinates for a child,
    /// on the screen for a window. Right before the first show, too. Without an arrow the widget stays.
    void myMove(int x, int y);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void addText();
    ArrowShape shape() const;

    int m_startPos = 50;
    int m_triangleWidth = 15;
    int m_triangleHeight = 10;
    Derection m_derection = Left;
    QPointer<QLabel> m_textLabel;
    QPointer<QGraphicsDropShadowEffect> m_shadowEffect;
};

} // namespace WyWidgets

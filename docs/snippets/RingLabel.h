//! [styling-own-class]
#pragma once

#include <QColor>
#include <QPainter>
#include <WyWidgets/WyLabel.h>

/// A label in a ring whose colour is up to the style sheet.
class RingLabel : public WyWidgets::WyLabel
{
    Q_OBJECT
    Q_PROPERTY(QColor ringColor READ ringColor WRITE setRingColor)

public:
    using WyLabel::WyLabel;

    QColor ringColor() const { return m_ringColor; }
    void setRingColor(const QColor& color)
    {
        m_ringColor = color;
        update();
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        WyLabel::paintEvent(event);
        QPainter painter(this);
        painter.setPen(QPen(m_ringColor, 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }

private:
    QColor m_ringColor = Qt::gray;
};
//! [styling-own-class]

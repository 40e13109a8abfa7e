#pragma once

#include <QGraphicsEffect>
#include <QPainter>

namespace WyWidgets {

/// An effect that a widget beyond the size of any screen, 33 million pixels (7680 x 4320), goes without: an
/// effect renders the whole widget into pictures, however little of it is seen.
template <typename Effect>
class BoundedEffect : public Effect
{
public:
    using Effect::Effect;

protected:
    void draw(QPainter* painter) override
    {
        constexpr qreal kMostPixels = 7680.0 * 4320.0;
        if (!painter->isActive()) // on a picture that another effect could not make
            return;
        const QSizeF size = this->boundingRect().size() * painter->device()->devicePixelRatioF();
        if (size.width() * size.height() > kMostPixels)
            this->drawSource(painter);
        else
            Effect::draw(painter);
    }
};

} // namespace WyWidgets

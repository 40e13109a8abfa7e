#include "WyWidgets/internal/painting/Shadow.h"

#include <QGraphicsDropShadowEffect>
#include <QPainter>
#include <QWidget>

namespace WyWidgets {

namespace {

/// As many as the largest screens have.
constexpr qreal kMostShadowedPixels = 7680.0 * 4320.0;

/// A shadow that a widget beyond the size of any screen goes without: an effect renders the whole widget into
/// pictures, however little of it is seen.
class BoundedShadow : public QGraphicsDropShadowEffect
{
public:
    using QGraphicsDropShadowEffect::QGraphicsDropShadowEffect;

protected:
    void draw(QPainter* painter) override
    {
        if (!painter->isActive()) // on a picture that another effect could not make
            return;
        const QSizeF size = boundingRect().size() * painter->device()->devicePixelRatioF();
        if (size.width() * size.height() > kMostShadowedPixels)
            drawSource(painter);
        else
            QGraphicsDropShadowEffect::draw(painter);
    }
};

} // namespace

QGraphicsDropShadowEffect* addShadow(QWidget* widget, QObject* owner, qreal blurRadiusPx)
{
    auto* shadow = new BoundedShadow(owner);
    shadow->setOffset(0.0, 0.0);
    shadow->setBlurRadius(blurRadiusPx);
    widget->setGraphicsEffect(shadow);
    return shadow;
}

} // namespace WyWidgets

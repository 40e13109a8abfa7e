#include "WyWidgets/internal/painting/Shadow.h"

#include "WyWidgets/internal/painting/BoundedEffect.h"

#include <QGraphicsDropShadowEffect>
#include <QWidget>

namespace WyWidgets {

QGraphicsDropShadowEffect* addShadow(QWidget* widget, QObject* owner, qreal blurRadiusPx)
{
    auto* shadow = new BoundedEffect<QGraphicsDropShadowEffect>(owner);
    shadow->setOffset(0.0, 0.0);
    shadow->setBlurRadius(blurRadiusPx);
    widget->setGraphicsEffect(shadow);
    return shadow;
}

} // namespace WyWidgets

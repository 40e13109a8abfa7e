#include "WyWidgets/internal/painting/Shadow.h"

#include <QGraphicsDropShadowEffect>
#include <QWidget>

namespace WyWidgets {

QGraphicsDropShadowEffect* addShadow(QWidget* widget, QObject* owner, qreal blurRadiusPx)
{
    auto* shadow = new QGraphicsDropShadowEffect(owner);
    shadow->setOffset(0.0, 0.0);
    shadow->setBlurRadius(blurRadiusPx);
    widget->setGraphicsEffect(shadow);
    return shadow;
}

} // namespace WyWidgets

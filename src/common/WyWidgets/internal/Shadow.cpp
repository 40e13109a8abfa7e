#include "WyWidgets/internal/Shadow.h"

#include <QGraphicsDropShadowEffect>
#include <QWidget>

namespace WyWidgets {

namespace {

constexpr qreal kBlurRadiusPx = 24.0;

} // namespace

QGraphicsDropShadowEffect* addShadow(QWidget* widget, QObject* owner)
{
    auto* shadow = new QGraphicsDropShadowEffect(owner);
    shadow->setOffset(0.0, 0.0);
    shadow->setBlurRadius(kBlurRadiusPx);
    widget->setGraphicsEffect(shadow);
    return shadow;
}

} // namespace WyWidgets

#pragma once

#include <QtGlobal>

class QGraphicsDropShadowEffect;
class QObject;
class QWidget;

namespace WyWidgets {

constexpr qreal kPanelShadowBlurPx = 24.0;

/// Gives the widget a soft shadow all round, in place of any effect it has. The effect is created as a child
/// of `owner`; the widget deletes it when it dies or gets another effect. Beyond 33 million pixels (7680 x
/// 4320) the widget is painted without it.
QGraphicsDropShadowEffect* addShadow(QWidget* widget, QObject* owner,
                                     qreal blurRadiusPx = kPanelShadowBlurPx);

} // namespace WyWidgets

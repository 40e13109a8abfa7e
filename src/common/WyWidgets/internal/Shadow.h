#pragma once

class QGraphicsDropShadowEffect;
class QObject;
class QWidget;

namespace WyWidgets {

/// Gives the widget a soft shadow all round, in place of any effect it has. The effect is created as a child
/// of `owner`; the widget deletes it when it dies or gets another effect.
QGraphicsDropShadowEffect* addShadow(QWidget* widget, QObject* owner);

} // namespace WyWidgets

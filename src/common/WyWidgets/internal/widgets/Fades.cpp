#include "WyWidgets/internal/widgets/Fades.h"

#include <QParallelAnimationGroup>
#include <QSequentialAnimationGroup>
#include <QWidget>

namespace WyWidgets {

QGraphicsOpacityEffect* installOpacityEffect(QWidget* widget, qreal opacity)
{
    auto* effect = new QGraphicsOpacityEffect(widget);
    effect->setOpacity(opacity);
    widget->setGraphicsEffect(effect);
    return effect;
}

QPropertyAnimation* createOpacityFade(QGraphicsOpacityEffect* effect, int durationMs, const QVariant& from,
                                      const QVariant& to)
{
    auto* fade = new QPropertyAnimation(effect, "opacity");
    fade->setDuration(durationMs);
    fade->setStartValue(from);
    fade->setEndValue(to);
    return fade;
}

QParallelAnimationGroup* createFadeGroup(QObject* owner, QPropertyAnimation* fade)
{
    auto* sequence = new QSequentialAnimationGroup(owner);
    sequence->addAnimation(fade);
    auto* group = new QParallelAnimationGroup(owner);
    group->addAnimation(sequence);
    return group;
}

} // namespace WyWidgets

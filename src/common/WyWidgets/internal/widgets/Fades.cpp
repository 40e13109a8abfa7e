#include "WyWidgets/internal/widgets/Fades.h"

#include "WyWidgets/internal/painting/BoundedEffect.h"

#include <QParallelAnimationGroup>
#include <QSequentialAnimationGroup>
#include <QWidget>

namespace WyWidgets {

namespace {

/// Too large a widget is there or not, with nothing in between.
class BoundedOpacity : public BoundedEffect<QGraphicsOpacityEffect>
{
public:
    using BoundedEffect::BoundedEffect;

protected:
    void draw(QPainter* painter) override
    {
        if (opacity() > 0)
            BoundedEffect::draw(painter);
    }
};

} // namespace

QGraphicsOpacityEffect* installOpacityEffect(QWidget* widget, qreal opacity)
{
    auto* effect = new BoundedOpacity(widget);
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

void endLater(QAbstractAnimation* animation)
{
    animation->disconnect(); // in its last step, stop() tells that it has finished
    animation->setParent(nullptr);
    animation->stop();
    animation->deleteLater();
}

void endRunningAnimations(QObject* owner)
{
    const auto animations = owner->findChildren<QAbstractAnimation*>(QString(), Qt::FindDirectChildrenOnly);
    for (QAbstractAnimation* animation : animations) {
        if (animation->state() != QAbstractAnimation::Stopped)
            endLater(animation);
    }
}

} // namespace WyWidgets

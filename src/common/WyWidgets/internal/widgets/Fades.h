#pragma once

#include <QGraphicsOpacityEffect>
#include <QPropertyAnimation>

class QParallelAnimationGroup;

namespace WyWidgets {

// Widgets inside a window fade with an opacity effect; its animation stands in a sequential group in a
// parallel group, which is what the owner starts.

/// Gives the widget a new opacity effect; the effect that it had is deleted. A widget of more than 33 million
/// pixels (7680 x 4320) does not fade: it is painted in full at any opacity above 0.
QGraphicsOpacityEffect* installOpacityEffect(QWidget* widget, qreal opacity);

/// An animation of the effect's opacity with linear easing and no parent. The type of the values (integer or
/// real) is kept.
QPropertyAnimation* createOpacityFade(QGraphicsOpacityEffect* effect, int durationMs, const QVariant& from,
                                      const QVariant& to);

/// A stopped group, child of `owner`, that plays the fade once and owns it.
QParallelAnimationGroup* createFadeGroup(QObject* owner, QPropertyAnimation* fade);

/// Stops the animation without a word to anybody and deletes it from the event loop: whoever has to end it
/// may have been called by its own step.
void endLater(QAbstractAnimation* animation);
/// Does so with those that are children of `owner` and under way; for its destructor.
void endRunningAnimations(QObject* owner);

} // namespace WyWidgets

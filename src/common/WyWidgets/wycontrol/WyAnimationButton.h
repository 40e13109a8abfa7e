#pragma once

#include "WyWidgets/WyExport.h"

#include <QPointer>
#include <QPushButton>

class QTimer;

namespace WyWidgets {

/// A button that disables itself while an operation runs and shows a countdown or growing dots meanwhile.
///
/// Set the texts with SetAnimationText() and the length of a countdown with SetAnimationSecond();
/// StartAnimation() starts whichever was chosen. Its owner deletes it; style it like any QPushButton.
class WYWIDGETS_EXPORT WyAnimationButton : public QPushButton
{
    Q_OBJECT

public:
    /// A resting button without texts.
    explicit WyAnimationButton(QWidget* parent = nullptr);

    /// The resting text, shown at once, and the text that the dots follow.
    void SetAnimationText(const QString& text, const QString& animationText);
    /// The resting text, shown at once, and the length of the countdown in seconds. With 0 or less the next
    /// animation shows dots.
    void SetAnimationSecond(const QString& text, int seconds);
    /// Disables the button and starts the countdown, or the dots, which run until StopAnimation(). Does
    /// nothing while an animation runs.
    void StartAnimation();
    /// Stops the animation. Half a second later, also when none ran, the resting text comes back and the
    /// button is enabled, unless it has been started again by then.
    void StopAnimation();
    /// Does nothing: there is no view beyond the button's own.
    void InitView();

public Q_SLOTS:
    /// One step of the animation.
    void SlotTimeOut();

private:
    bool isCountdown() const;
    QString countdownText() const;
    void restoreLater();
    void restore(int run);

    QString m_text;
    QString m_animationText;
    QPointer<QTimer> m_timer;
    int m_seconds = 0;
    int m_step = 0;
    int m_run = 0; ///< number of the run under way, or of the last one
};

} // namespace WyWidgets

#include "WyWidgets/wycontrol/WyAnimationButton.h"

#include "WyWidgets/internal/widgets/Timers.h"

namespace WyWidgets {

namespace {

constexpr int kDotsIntervalMs = 500;
constexpr int kCountdownIntervalMs = 1000;
constexpr int kRestoreDelayMs = 500;
constexpr int kMostDots = 3;

} // namespace

WyAnimationButton::WyAnimationButton(QWidget* parent) : QPushButton(parent), m_timer(new QTimer(this))
{
    connect(m_timer, &QTimer::timeout, this, &WyAnimationButton::SlotTimeOut);
}

void WyAnimationButton::SetAnimationText(const QString& text, const QString& animationText)
{
    m_text = text;
    m_animationText = animationText;
    setText(m_text);
}

void WyAnimationButton::SetAnimationSecond(const QString& text, int seconds)
{
    m_text = text;
    m_seconds = seconds;
    setText(m_text);
}

void WyAnimationButton::StartAnimation()
{
    if (!m_timer || m_timer->isActive())
        return;
    ++m_run;
    m_step = 0;
    setText(isCountdown() ? countdownText() : m_animationText);
    m_timer->start(isCountdown() ? kCountdownIntervalMs : kDotsIntervalMs);
    // Last, as the host's handler of the change may stop the animation or delete the button.
    setEnabled(false);
}

void WyAnimationButton::StopAnimation()
{
    stopIfActive(m_timer);
    restoreLater();
}

void WyAnimationButton::InitView() {}

void WyAnimationButton::SlotTimeOut()
{
    if (!isCountdown()) {
        const int dots = m_step % kMostDots + 1;
        m_step = dots % kMostDots;
        setText(m_animationText + QString(dots, QLatin1Char('.')));
        return;
    }
    // The text is taken before the step advances: the first number stays for two ticks, the last one for half
    // a tick.
    const QString text = countdownText();
    ++m_step;
    if (m_step >= m_seconds) {
        stopIfActive(m_timer);
        restoreLater();
    }
    setText(text);
}

bool WyAnimationButton::isCountdown() const
{
    return m_seconds > 0;
}

// Never below 0, also when the countdown was shortened while it ran.
QString WyAnimationButton::countdownText() const
{
    //: Seconds that are left.
    return tr("%1 s").arg(qMax(m_seconds - m_step, 0));
}

void WyAnimationButton::restoreLater()
{
    QTimer::singleShot(kRestoreDelayMs, this, [this, run = m_run] { restore(run); });
}

void WyAnimationButton::restore(int run)
{
    if (run != m_run) // it has been started again
        return;
    setText(m_text);
    setEnabled(true);
}

} // namespace WyWidgets

#include "WyWidgets/wycontrol/WyGifLabel.h"

#include "WyWidgets/internal/accessibility/Accessibility.h"
#include "WyWidgets/internal/painting/PictureFile.h"
#include "WyWidgets/internal/widgets/Timers.h"

namespace WyWidgets {

namespace {

constexpr int kFrameIntervalMs = 84;
constexpr int kFrameNumberDigits = 2;

} // namespace

WyGifLabel::WyGifLabel(QWidget* parent) : QLabel(parent)
{
    offerAccessibility();
}

WyGifLabel::~WyGifLabel()
{
    stop();
}

void WyGifLabel::SetGif(const QString& path, int step)
{
    m_gifPath = path;
    m_gifStep = step;
}

void WyGifLabel::start()
{
    if (!m_timer) {
        m_timer = new QTimer(this);
        connect(m_timer, SIGNAL(timeout()), this, SLOT(slotTimeOut()));
    }
    m_frame = 1;
    m_timer->start(kFrameIntervalMs);
}

void WyGifLabel::stop()
{
    stopIfActive(m_timer);
}

void WyGifLabel::slotTimeOut()
{
    const QString file =
        m_gifPath + QStringLiteral("loading_%1.png").arg(m_frame, kFrameNumberDigits, 10, QLatin1Char('0'));
    m_frame = m_frame < m_gifStep ? m_frame + 1 : 1;
    // Last, as the host's handler of the change may start anew or delete the label.
    if (!isHarmfulPicture(file))
        setStyleSheet(QStringLiteral("border-image:url(%1);").arg(file));
}

} // namespace WyWidgets

#include "WyWidgets/wycontrol/WyLoadBox.h"

#include "WyWidgets/internal/accessibility/Accessibility.h"
#include "WyWidgets/internal/widgets/Timers.h"
#include "WyWidgets/wycontrol/WyGifLabel.h"

#include <QStyle>
#include <QVBoxLayout>

namespace WyWidgets {

namespace {

constexpr QSize kGifSizePx(32, 32);
constexpr int kTimeLimitMs = 180000;

} // namespace

WyLoadBox::WyLoadBox(QWidget* parent) : QWidget(parent)
{
    offerAccessibility();
    setAttribute(Qt::WA_StyledBackground);
    auto* layout = new QVBoxLayout(this);
    m_gifLabel = new WyGifLabel(this);
    m_gifLabel->setFixedSize(kGifSizePx);
    layout->addWidget(m_gifLabel, 0, Qt::AlignHCenter);
}

void WyLoadBox::StartLoad(bool mask)
{
    if (mask) {
        const QPointer<WyLoadBox> alive(this);
        setObjectName(QStringLiteral("mask_margin"));
        if (!alive)
            return;
        style()->unpolish(this);
        style()->polish(this);
        update();
    }
    if (m_gifLabel)
        m_gifLabel->start();
    startTimeLimit();
}

void WyLoadBox::StopLoad()
{
    if (m_gifLabel)
        m_gifLabel->stop();
    stopIfActive(m_timer);
}

void WyLoadBox::AdjustParentSize()
{
    if (isVisible() && parentWidget())
        resize(parentWidget()->size());
}

void WyLoadBox::startTimeLimit()
{
    if (!m_timer) {
        m_timer = new QTimer(this);
        connect(m_timer, &QTimer::timeout, this, &WyLoadBox::endLoad);
    }
    m_timer->setSingleShot(true);
    m_timer->start(kTimeLimitMs);
}

void WyLoadBox::endLoad()
{
    StopLoad();
    hide(); // last, as the host's handler may start another load or delete the box
}

} // namespace WyWidgets

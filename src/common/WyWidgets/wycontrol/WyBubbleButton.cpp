#include "WyWidgets/wycontrol/WyBubbleButton.h"

#include "WyWidgets/wycontrol/WyBubbleTip.h"

namespace WyWidgets {

namespace {

constexpr int kArrowStartPx = 10;
constexpr QPoint kTipOffsetPx(40, 60);

} // namespace

WyBubbleButton::WyBubbleButton(QWidget* parent) : QPushButton(parent) {}

WyBubbleButton::~WyBubbleButton()
{
    // The bubble lives as long as its window, but it must not stay on the screen without its button.
    if (m_bubbleTip)
        m_bubbleTip->hide();
}

void WyBubbleButton::SetBubbleTip(const QString& text)
{
    m_tipText = text;
    if (!m_bubbleTip)
        createBubble();
}

void WyBubbleButton::enterEvent(QEvent* event)
{
    QPushButton::enterEvent(event);
    if (!m_tipText.isEmpty() && m_bubbleTip)
        showBubble();
}

void WyBubbleButton::leaveEvent(QEvent* event)
{
    QPushButton::leaveEvent(event);
    if (m_bubbleTip)
        m_bubbleTip->hide();
}

void WyBubbleButton::createBubble()
{
    m_bubbleTip = new WyBubbleTip(window());
    // A bubble that took the mouse could come up under the pointer, take it from the button and flicker. Tool
    // tips stay on top anyway, but on X11 one that does not say so gets a new window when it shows, which
    // takes the mouse again.
    m_bubbleTip->setWindowFlags(m_bubbleTip->windowFlags() | Qt::WindowTransparentForInput |
                                Qt::WindowStaysOnTopHint);
    m_bubbleTip->setAttribute(Qt::WA_TransparentForMouseEvents);
}

void WyBubbleButton::showBubble()
{
    const QPointer<WyBubbleButton> alive(this);
    const auto areAlive = [&] { // events of the bubble run code of the host
        return alive && m_bubbleTip;
    };
    m_bubbleTip->SetBubbleTip(m_tipText);
    m_bubbleTip->setDerection(WyBubbleTip::Left);
    m_bubbleTip->setStartPos(kArrowStartPx); // before the move, which depends on it
    // The button's place in its parent, taken as a place on the screen: hosts rely on it.
    if (areAlive())
        m_bubbleTip->myMove(x() + kTipOffsetPx.x(), y() + kTipOffsetPx.y());
    if (areAlive())
        m_bubbleTip->show();
}

} // namespace WyWidgets

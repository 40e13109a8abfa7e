// What all toasts share: settings, the stack on screen, the queue, and the places that follow from them.

#include "WyWidgets/wycontrol/WyToast.h"

#include "WyWidgets/internal/toast/ToastPlacement.h"
#include "WyWidgets/internal/widgets/GuardedList.h"

#include <QCoreApplication>
#include <QPropertyAnimation>
#include <QScreen>

#include <algorithm>
#include <iterator>

namespace WyWidgets {

namespace {

constexpr int kDefaultMaximumOnScreen = 3;
constexpr int kDefaultSpacingPx = 10;
constexpr int kDefaultOffsetXPx = 20;
constexpr int kDefaultOffsetYPx = 45;
constexpr ToastPosition kDefaultPosition = ToastPosition::BOTTOM_RIGHT;

QMetaObject::Connection fixedScreenRemoval;

} // namespace

int WyToast::s_maximumOnScreen = kDefaultMaximumOnScreen;
int WyToast::s_spacing = kDefaultSpacingPx;
int WyToast::s_offsetX = kDefaultOffsetXPx;
int WyToast::s_offsetY = kDefaultOffsetYPx;
ToastPosition WyToast::s_position = kDefaultPosition;
bool WyToast::s_alwaysOnMainScreen = false;
QScreen* WyToast::s_fixedScreen = nullptr;
std::deque<WyToast*> WyToast::s_currentlyShown;
std::deque<WyToast*> WyToast::s_queue;
int WyToast::s_resetCount = 0;

void WyToast::setMaximumOnScreen(int maximum)
{
    const int old = s_maximumOnScreen;
    s_maximumOnScreen = maximum;
    if (maximum <= old)
        return;
    for (qint64 turns = qint64(maximum) - old; turns > 0 && !s_queue.empty(); --turns) {
        // A handler of the host may have lowered the maximum again.
        if (getVisibleCount() >= s_maximumOnScreen) {
            // No room: each remaining turn would only send the front toast to the back.
            const auto length = static_cast<qint64>(s_queue.size());
            std::rotate(s_queue.begin(), s_queue.begin() + turns % length, s_queue.end());
            return;
        }
        showNextInQueue();
    }
}

void WyToast::setSpacing(int spacing)
{
    s_spacing = spacing;
    updateCurrentlyShowingPositionY();
}

QPoint WyToast::getOffset()
{
    return {s_offsetX, s_offsetY};
}

void WyToast::setOffset(int x, int y)
{
    s_offsetX = x;
    s_offsetY = y;
    updateCurrentlyShowingPositionXY();
}

void WyToast::setOffsetX(int offsetX)
{
    s_offsetX = offsetX;
    updateCurrentlyShowingPositionX();
}

void WyToast::setOffsetY(int offsetY)
{
    s_offsetY = offsetY;
    updateCurrentlyShowingPositionY();
}

void WyToast::setAlwaysOnMainScreen(bool on)
{
    s_alwaysOnMainScreen = on;
    updateCurrentlyShowingPositionXY();
}

void WyToast::setFixedScreen(QScreen* screen)
{
    QObject::disconnect(fixedScreenRemoval);
    s_fixedScreen = screen;
    if (screen)
        fixedScreenRemoval = connect(screen, &QObject::destroyed, [] { setFixedScreen(nullptr); });
    updateCurrentlyShowingPositionXY();
}

void WyToast::setPosition(ToastPosition position)
{
    s_position = position;
    updateCurrentlyShowingPositionXY();
}

int WyToast::getCount()
{
    return getVisibleCount() + getQueuedCount();
}

int WyToast::getVisibleCount()
{
    return static_cast<int>(s_currentlyShown.size());
}

int WyToast::getQueuedCount()
{
    return static_cast<int>(s_queue.size());
}

void WyToast::reset()
{
    ++s_resetCount;
    s_maximumOnScreen = kDefaultMaximumOnScreen;
    s_spacing = kDefaultSpacingPx;
    s_offsetX = kDefaultOffsetXPx;
    s_offsetY = kDefaultOffsetYPx;
    s_alwaysOnMainScreen = false;
    QObject::disconnect(fixedScreenRemoval);
    s_fixedScreen = nullptr;
    s_position = kDefaultPosition;

    const auto shown = guarded(s_currentlyShown);
    // First, so that whatever comes of hiding them finds nothing to do.
    s_currentlyShown.clear();
    s_queue.clear();
    for (const QPointer<WyToast>& toast : shown) {
        if (toast)
            toast->QDialog::hide();
        if (toast)
            toast->deleteLater();
    }
}

void WyToast::showNextInQueue()
{
    if (s_queue.empty())
        return;
    WyToast* next = s_queue.front();
    s_queue.pop_front();
    next->show();
}

void WyToast::animatePosition(const QPoint& target, int duration)
{
    auto* animation = new QPropertyAnimation(this, "pos");
    animation->setDuration(qMax(0, duration));
    animation->setEndValue(target);
    start(animation);
}

QPoint WyToast::calculatePosition() const
{
    qint64 stacked = 0;
    for (const WyToast* earlier : s_currentlyShown) {
        if (earlier == this)
            break;
        stacked += qint64(earlier->bodySize().height()) + s_spacing;
    }
    const QScreen* screen = s_fixedScreen;
    if (!screen)
        screen = screenBesideParent(s_alwaysOnMainScreen ? nullptr : m_parent.data());
    const QPoint corner =
        screen ? anchoredPosition(s_position, screen->geometry(), bodySize(), getOffset(), stacked)
               : QPoint(0, 0);
    return corner - QPoint(sc_dropShadowSize, sc_dropShadowSize);
}

/// The toast listed just before this one; the last one if this one is not listed.
WyToast* WyToast::getPredecessorToast() const
{
    const auto self = std::find(s_currentlyShown.begin(), s_currentlyShown.end(), this);
    return self == s_currentlyShown.begin() ? nullptr : *std::prev(self);
}

void WyToast::updatePositionX()
{
    if (!m_horizontalMove)
        m_horizontalMove = std::make_unique<QPropertyAnimation>(this, "pos");
    m_horizontalMove->stop();
    m_horizontalMove->setDuration(sc_updatePositionDuration);
    m_horizontalMove->setEndValue(QPoint(calculatePosition().x(), y()));
    // Unlike the others this animation is kept for the next time.
    m_horizontalMove->start(QAbstractAnimation::KeepWhenStopped);
}

void WyToast::updatePositionY()
{
    animatePosition({x(), calculatePosition().y()}, sc_updatePositionDuration);
}

void WyToast::updatePositionXY()
{
    animatePosition(calculatePosition(), sc_updatePositionDuration);
}

void WyToast::updateCurrentlyShowingPositionX()
{
    for (const QPointer<WyToast>& toast : guarded(s_currentlyShown)) {
        if (toast)
            toast->updatePositionX();
    }
}

void WyToast::updateCurrentlyShowingPositionY()
{
    for (const QPointer<WyToast>& toast : guarded(s_currentlyShown)) {
        if (toast)
            toast->updatePositionY();
    }
}

void WyToast::updateCurrentlyShowingPositionXY()
{
    for (const QPointer<WyToast>& toast : guarded(s_currentlyShown)) {
        if (toast)
            toast->updatePositionXY();
    }
}

/// Lets the others move up and the next toast show after one has left without its fade-out.
void WyToast::passSlotOn()
{
    // Not at once: the toast's siblings and its parent may be about to die, too.
    QMetaObject::invokeMethod(
        qApp,
        [] {
            updateCurrentlyShowingPositionY();
            if (getVisibleCount() < s_maximumOnScreen)
                showNextInQueue();
        },
        Qt::QueuedConnection);
}

} // namespace WyWidgets

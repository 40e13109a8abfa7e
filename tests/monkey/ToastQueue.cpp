#include "monkey/ToastQueue.h"

#include "monkey/Trace.h"

#include "WyWidgets/wycontrol/WyToast.h"

#include <algorithm>

namespace Monkey {

using WyWidgets::WyToast;

namespace {

// The order in which toasts wait shows in nothing public. An explicit instantiation may name what is private.
using ToastList = std::deque<WyToast*>;

template <typename Which, ToastList* List>
struct Reveal
{
    friend const ToastList& list(Which) { return *List; }
};

struct Shown
{
};
const ToastList& list(Shown);
template struct Reveal<Shown, &WyToast::s_currentlyShown>;

struct Waiting
{
};
const ToastList& list(Waiting);
template struct Reveal<Waiting, &WyToast::s_queue>;

bool contains(const ToastList& list, const WyToast* toast)
{
    return std::find(list.begin(), list.end(), toast) != list.end();
}

/// Whether a list is the other one, or would be if it were turned.
bool isTurned(ToastList list, const ToastList& other)
{
    for (std::size_t turns = list.size(); turns > 0 && list != other; --turns)
        std::rotate(list.begin(), list.begin() + 1, list.end());
    return list == other;
}

} // namespace

ToastQueue::ToastQueue() : m_maximum(WyToast::getMaximumOnScreen()) {}

void ToastQueue::aboutToCall(const QByteArray& operation, const WyToast* toast)
{
    if (operation == "show")
        m_asked.insert(toast);
    const bool hasRoom = WyToast::getVisibleCount() < WyToast::getMaximumOnScreen();
    m_turns = m_turns || operation == "showNextInQueue" || operation == "setMaximumOnScreen" ||
              placesAreShort(operation == "show" && hasRoom ? 1 : 0);
    m_reset = m_reset || operation == "reset";
    m_maximum = qMax(m_maximum, WyToast::getMaximumOnScreen());
}

void ToastQueue::toastDied(QObject* toast)
{
    // One that dies on screen offers its place to the queue and to everybody else.
    m_turns = !m_leaving.remove(toast) || m_turns;
}

void ToastQueue::check()
{
    m_maximum = qMax(m_maximum, WyToast::getMaximumOnScreen());
    m_turns = m_turns || placesAreShort(0);
    checkCount();
    if (!m_reset) {
        checkNoneIsLost();
        checkOrder();
    }
    m_waiting = {list(Waiting()).begin(), list(Waiting()).end()};
    m_asked.clear();
    m_countBefore = WyToast::getVisibleCount();
    m_maximum = WyToast::getMaximumOnScreen();
    m_reset = false;
}

void ToastQueue::checkSettled()
{
    check();
    m_turns = placesAreShort(0);
}

void ToastQueue::checkCount() const
{
    const int count = WyToast::getVisibleCount();
    if (count > qMax(m_countBefore, m_maximum))
        Trace::fail("%d toasts are on screen, at most %d may be", count, m_maximum);
}

void ToastQueue::checkNoneIsLost() const
{
    for (const QPointer<WyToast>& toast : m_waiting) {
        if (toast && !contains(list(Waiting()), toast) && !contains(list(Shown()), toast) &&
            !m_leaving.contains(toast))
            Trace::fail("a waiting toast is lost");
    }
}

void ToastQueue::checkOrder() const
{
    ToastList before;
    for (const QPointer<WyToast>& toast : m_waiting) {
        if (!toast || m_asked.contains(toast))
            continue;
        if (contains(list(Waiting()), toast))
            before.push_back(toast);
        else if (!before.empty() && !m_turns)
            Trace::fail("a toast has been overtaken by one behind it");
    }
    ToastList now;
    bool someAreNew = false;
    for (WyToast* toast : list(Waiting())) {
        if (contains(before, toast)) {
            now.push_back(toast);
            if (someAreNew && !m_turns)
                Trace::fail("a toast has been overtaken by one that came later");
        }
        someAreNew = someAreNew || !hasWaited(toast);
    }
    if (m_turns ? !isTurned(now, before) : now != before)
        Trace::fail("the waiting toasts have changed places");
}

/// Whether a toast that passes its place on may find it taken, once so many more are on screen.
bool ToastQueue::placesAreShort(int more) const
{
    return WyToast::getVisibleCount() + more + m_leaving.size() > WyToast::getMaximumOnScreen();
}

bool ToastQueue::hasWaited(const WyToast* toast) const
{
    return std::find(m_waiting.begin(), m_waiting.end(), toast) != m_waiting.end();
}

} // namespace Monkey

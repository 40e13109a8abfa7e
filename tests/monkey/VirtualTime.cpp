#include "monkey/VirtualTime.h"

#include <QCoreApplication>
#include <QTimerEvent>

#include <qpa/qwindowsysteminterface.h>

namespace Monkey {

namespace {

constexpr int kFrameMs = 16;

} // namespace

VirtualTime::VirtualTime() = default;

void VirtualTime::advance(int milliseconds)
{
    const qint64 end = m_now + milliseconds;
    while (!m_timers.isEmpty() && m_timers.firstKey() <= end) {
        m_now = qMax(m_now, m_timers.firstKey());
        fireNext();
        deliverEvents(QEventLoop::AllEvents);
        // Timers without an interval must not hold up the clock.
        ++m_now;
    }
    m_now = qMax(m_now, end);
}

QList<QObject*> VirtualTime::timerOwners() const
{
    QList<QObject*> owners;
    for (const Timer& timer : m_timers)
        owners += timer.object;
    return owners;
}

bool VirtualTime::processEvents(QEventLoop::ProcessEventsFlags flags)
{
    emit awake();
    if (deliverEvents(flags))
        return true;
    if (m_idleWork)
        m_idleWork();
    return true;
}

bool VirtualTime::deliverEvents(QEventLoop::ProcessEventsFlags flags)
{
    QCoreApplication::sendPostedEvents();
    return QWindowSystemInterface::sendWindowSystemEvents(flags);
}

bool VirtualTime::fireNext()
{
    if (m_timers.isEmpty() || m_timers.firstKey() > m_now)
        return false;
    const Timer timer = m_timers.take(m_timers.firstKey());
    m_timers.insert(m_now + qMax(1, timer.interval), timer);
    QTimerEvent event(timer.id);
    QCoreApplication::sendEvent(timer.object, &event);
    return true;
}

bool VirtualTime::hasPendingEvents()
{
    return QWindowSystemInterface::windowSystemEventsQueued() > 0;
}

void VirtualTime::registerTimer(int id, int interval, Qt::TimerType type, QObject* object)
{
    m_timers.insert(m_now + interval, {id, interval, type, object});
}

bool VirtualTime::unregisterTimer(int id)
{
    for (auto timer = m_timers.begin(); timer != m_timers.end(); ++timer) {
        if (timer->id == id) {
            m_timers.erase(timer);
            return true;
        }
    }
    return false;
}

bool VirtualTime::unregisterTimers(QObject* object)
{
    bool found = false;
    for (auto timer = m_timers.begin(); timer != m_timers.end();) {
        const bool itsOwn = timer->object == object;
        found = found || itsOwn;
        timer = itsOwn ? m_timers.erase(timer) : std::next(timer);
    }
    return found;
}

QList<QAbstractEventDispatcher::TimerInfo> VirtualTime::registeredTimers(QObject* object) const
{
    QList<TimerInfo> infos;
    for (const Timer& timer : m_timers) {
        if (timer.object == object)
            infos += TimerInfo(timer.id, timer.interval, timer.type);
    }
    return infos;
}

int VirtualTime::remainingTime(int id)
{
    for (auto timer = m_timers.begin(); timer != m_timers.end(); ++timer) {
        if (timer->id == id)
            return static_cast<int>(qMax<qint64>(0, timer.key() - m_now));
    }
    return -1;
}

VirtualAnimations::VirtualAnimations(const VirtualTime& time) : m_time(time)
{
    install();
    m_endless.start();
    startTimer(kFrameMs);
}

qint64 VirtualAnimations::elapsed() const
{
    return m_time.now();
}

void VirtualAnimations::timerEvent(QTimerEvent*)
{
    advance();
}

} // namespace Monkey

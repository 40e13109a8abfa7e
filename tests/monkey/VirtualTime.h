#pragma once

#include "support/EndlessAnimation.h"

#include <QAbstractEventDispatcher>
#include <QAnimationDriver>
#include <QMultiMap>

#include <functional>

namespace Monkey {

/// An event loop whose clock moves only when it is told to: timers fire in the order of their due times,
/// without any waiting, so that the same seed meets the same timeouts each time.
class VirtualTime : public QAbstractEventDispatcher
{
    Q_OBJECT

public:
    VirtualTime();

    /// What the event loop does when nothing else is left to do.
    void setIdleWork(std::function<void()> work) { m_idleWork = std::move(work); }
    qint64 now() const { return m_now; }
    /// Lets the time pass, with everything that falls due meanwhile.
    void advance(int milliseconds);
    /// The objects that have a timer running.
    QList<QObject*> timerOwners() const;

    bool processEvents(QEventLoop::ProcessEventsFlags flags) override;
    bool hasPendingEvents() override;
    void registerSocketNotifier(QSocketNotifier*) override {}
    void unregisterSocketNotifier(QSocketNotifier*) override {}
    void registerTimer(int id, int interval, Qt::TimerType type, QObject* object) override;
    bool unregisterTimer(int id) override;
    bool unregisterTimers(QObject* object) override;
    QList<TimerInfo> registeredTimers(QObject* object) const override;
    int remainingTime(int id) override;
    void wakeUp() override {}
    void interrupt() override {}
    void flush() override {}

private:
    struct Timer
    {
        int id;
        int interval;
        Qt::TimerType type;
        QObject* object;
    };

    bool deliverEvents(QEventLoop::ProcessEventsFlags flags);
    bool fireNext();

    QMultiMap<qint64, Timer> m_timers; // by due time; of equal ones the latest first
    qint64 m_now = 0;
    std::function<void()> m_idleWork;
    bool m_working = false;
};

/// Lets Qt's animations follow the virtual clock.
class VirtualAnimations : public QAnimationDriver
{
    Q_OBJECT

public:
    explicit VirtualAnimations(const VirtualTime& time);

    qint64 elapsed() const override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    const VirtualTime& m_time;
    WyTest::EndlessAnimation m_endless;
};

} // namespace Monkey

#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>

#include <functional>
#include <utility>

namespace WyTest {

/// Acts each time an object gets an event of a type, as a handler of the host might; not again while it acts.
/// It may delete the object.
class OnEvent : public QObject
{
public:
    OnEvent(QObject* watched, QEvent::Type type, std::function<void()> act)
        : m_type(type), m_act(std::move(act))
    {
        watched->installEventFilter(this);
    }

    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (event->type() != m_type || m_isActing)
            return false;
        const QPointer<QObject> alive(receiver);
        m_isActing = true;
        m_act();
        m_isActing = false;
        return !alive;
    }

private:
    const QEvent::Type m_type;
    const std::function<void()> m_act;
    bool m_isActing = false;
};

/// Counts the events of a type that an object gets.
class EventCounter
{
public:
    EventCounter(QObject* watched, QEvent::Type type) : m_onEvent(watched, type, [this] { ++m_count; }) {}

    int count() const { return m_count; }
    void reset() { m_count = 0; }

private:
    int m_count = 0;
    OnEvent m_onEvent;
};

} // namespace WyTest

#pragma once

#include "monkey/Pool.h"
#include "monkey/ToastQueue.h"

#include <QHash>
#include <QObject>

namespace Monkey {

class VirtualTime;

/// What must hold after every step, whatever happened before.
class Invariants : public QObject
{
    Q_OBJECT

public:
    /// Watches the signals that tell something checkable.
    void watch(QWidget* object);
    /// Just before an operation of a member is called.
    void aboutToCall(const Pool::Member& member, const char* operation);
    /// Counts and order of toasts; at most one marker of each kind in each member that is looked at this
    /// time.
    void checkStep(Pool& pool, Random& random);
    /// No windows but the members' own, and the order of toasts. For moments when all posted events have been
    /// delivered.
    void checkSettled(const Pool& pool);
    /// Nothing of the library is left, neither window nor timer nor count.
    void checkEnd(const VirtualTime& time) const;

private slots:
    void toastClosed();
    void frameMoved(const QRect& rect, bool moved);

private:
    void checkToasts(Pool& pool) const;
    void checkWindows(const Pool& pool) const;
    void checkMarkers(const Pool::Member& member) const;

    QHash<QObject*, int> m_closed;
    ToastQueue m_toastQueue;
};

} // namespace Monkey

#pragma once

#include <QByteArray>
#include <QPointer>
#include <QSet>

#include <vector>

namespace WyWidgets {
class WyToast;
}

namespace Monkey {

/// Watches how the rich toasts wait and get their turn.
class ToastQueue
{
public:
    ToastQueue();

    /// Just before an operation of a toast is called.
    void aboutToCall(const QByteArray& operation, const WyWidgets::WyToast* toast);
    void toastClosed(QObject* toast) { m_leaving.insert(toast); }
    void toastDied(QObject* toast);
    /// There are never more toasts on screen than allowed, and none is lost or overtaken in the queue.
    void check();
    /// The same when all posted events have been delivered, too.
    void checkSettled();

private:
    void checkCount() const;
    void checkNoneIsLost() const;
    void checkOrder() const;
    bool placesAreShort(int more) const;
    bool hasWaited(const WyWidgets::WyToast* toast) const;

    /// The queue at the last check.
    std::vector<QPointer<WyWidgets::WyToast>> m_waiting;
    /// Closed and not dead yet: their places may not have been passed on.
    QSet<QObject*> m_leaving;
    /// Toasts that were asked to show since the last check.
    QSet<const QObject*> m_asked;
    int m_countBefore = 0;
    /// The highest maximum since the last check.
    int m_maximum;
    /// A toast's turn may have come without room for it, which sends it to the back.
    bool m_turns = false;
    bool m_reset = false;
};

} // namespace Monkey

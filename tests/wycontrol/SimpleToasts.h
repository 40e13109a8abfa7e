#pragma once

#include "WyWidgets/wycontrol/WySimpleToast.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

/// What the tests of the simple toast share.
namespace SimpleToasts {

constexpr int kLongMs = 600000;

inline QTimer* displayTimer(const WyWidgets::WySimpleToast* toast)
{
    return toast->findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
}

/// The number of toasts in the column, read off the slot that the newest one takes.
inline int count()
{
    WyWidgets::WySimpleToast probe;
    probe.setOrientation(WyWidgets::WySimpleToast::TOASTR_TOP_LEFT);
    probe.stateOrientation();
    return probe.y() / (probe.height() + 10);
}

/// Ends the toast's fade-out at once.
inline void expire(WyWidgets::WySimpleToast* toast)
{
    toast->setHideDuration(0);
    toast->hideAnimation();
}

/// A window with toasts that stay on it until the test ends them or is over. Afterwards the column is empty
/// and the class-wide display time is the default again.
class Column
{
public:
    explicit Column(QRect area = QRect(100, 50, 1000, 700)) { m_window.setGeometry(area); }
    ~Column()
    {
        for (const QPointer<WyWidgets::WySimpleToast>& toast : m_toasts)
            delete toast;
        WyWidgets::WySimpleToast().setDuration(2000);
    }

    QWidget& window() { return m_window; }

    /// A toast that is not shown yet.
    WyWidgets::WySimpleToast* make()
    {
        auto* toast = new WyWidgets::WySimpleToast(&m_window);
        toast->setOrientation(WyWidgets::WySimpleToast::TOASTR_TOP_LEFT);
        toast->setShowDuration(0);
        toast->setDuration(kLongMs);
        m_toasts += toast;
        return toast;
    }

    QPointer<WyWidgets::WySimpleToast> show()
    {
        WyWidgets::WySimpleToast* toast = make();
        toast->show();
        return toast;
    }

    /// The top slot that the toast stands in, counted from 1.
    int slotOf(const WyWidgets::WySimpleToast* toast) const
    {
        return (toast->y() - m_window.y()) / (toast->height() + 10);
    }

private:
    QWidget m_window;
    QVector<QPointer<WyWidgets::WySimpleToast>> m_toasts;
};

} // namespace SimpleToasts

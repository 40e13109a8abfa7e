#include "WyWidgets/internal/toast/ToastWindowFilter.h"

#include "WyWidgets/wycontrol/WyToast.h"

#include <QKeyEvent>
#include <QTimer>

namespace WyWidgets {

ToastWindowFilter::ToastWindowFilter(WyToast* toast) : m_toast(toast)
{
    toast->installEventFilter(this);
}

bool ToastWindowFilter::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        if (static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel)) {
            m_toast->hide();
            return true;
        }
        break;
    case QEvent::Hide:
        // Not at once: whoever hides or closes the toast still works on it, and a slot of closed() may delete
        // it.
        if (!event->spontaneous())
            QTimer::singleShot(0, m_toast, [this] { leaveScreenUnlessVisible(); });
        break;
    case QEvent::WindowStateChange:
        m_toast->restDurationBarWhileMinimized();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void ToastWindowFilter::leaveScreenUnlessVisible()
{
    if (m_toast->isHidden())
        m_toast->hide_();
}

} // namespace WyWidgets

#include "WyWidgets/wycontrol/WyPopupWidget.h"

#include "WyWidgets/internal/widgets/PopupContent.h"
#include "WyWidgets/internal/widgets/Timers.h"

#include <QCloseEvent>

namespace WyWidgets {

namespace {

constexpr int kCloseAfterLeaveMs = 200;

} // namespace

WyPopupWidget::WyPopupWidget(QWidget* parent) : QWidget(parent)
{
    setWindowFlags(Qt::Popup);
    setAttribute(Qt::WA_TranslucentBackground);
    m_contentWidget = CreateContent();
}

QWidget* WyPopupWidget::CreateContent()
{
    return addPopupContent(this);
}

void WyPopupWidget::setPopup(bool popup)
{
    m_popup = popup;
    if (popup)
        StopTimer();
    setWindowFlags(popup ? Qt::Popup : Qt::ToolTip);
}

void WyPopupWidget::StartTimer(int msec)
{
    if (m_popup)
        return;
    if (!m_timer)
        m_timer = createSingleShot(this, SLOT(close()));
    startIfIdle(m_timer, msec);
}

void WyPopupWidget::StopTimer()
{
    stopIfActive(m_timer);
}

bool WyPopupWidget::event(QEvent* e)
{
    if (e->type() == QEvent::WindowDeactivate) {
        StopTimer();
        const QPointer<QWidget> guard(this);
        m_isQtDeactivating = e->spontaneous();
        close();
        if (!guard)
            return true;
        m_isQtDeactivating = false;
    }
    return QWidget::event(e);
}

void WyPopupWidget::enterEvent(QEvent* e)
{
    StopTimer();
    QWidget::enterEvent(e);
}

void WyPopupWidget::leaveEvent(QEvent* e)
{
    // A window that was hidden under the pointer hears of the pointer's leaving, too, but has nothing to
    // close.
    if (!(isHidden() && testAttribute(Qt::WA_WState_ExplicitShowHide)))
        StartTimer(kCloseAfterLeaveMs);
    QWidget::leaveEvent(e);
}

void WyPopupWidget::closeEvent(QCloseEvent* e)
{
    e->ignore();
    if (!m_hideOnClose)
        return;
    const QPointer<QWidget> guard(this);
    hide();
    if (!guard)
        return;
    StopTimer(); // nothing is left to close
    // Qt has more events for a window that it deactivates, whatever a slot does to the window.
    if (m_isQtDeactivating)
        QMetaObject::invokeMethod(this, &WyPopupWidget::SignalPopupClose, Qt::QueuedConnection);
    else
        emit SignalPopupClose();
}

} // namespace WyWidgets

#include "WyWidgets/internal/widgets/Timers.h"

namespace WyWidgets {

QTimer* createSingleShot(QObject* owner, const char* slot)
{
    auto* timer = new QTimer(owner);
    timer->setSingleShot(true);
    QObject::connect(timer, SIGNAL(timeout()), owner, slot);
    return timer;
}

void startIfIdle(QTimer* timer, int msec)
{
    if (timer && !timer->isActive() && msec >= 0)
        timer->start(msec);
}

void stopIfActive(QTimer* timer)
{
    if (timer && timer->isActive())
        timer->stop();
}

} // namespace WyWidgets

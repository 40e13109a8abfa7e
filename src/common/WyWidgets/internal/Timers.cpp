#include "WyWidgets/internal/Timers.h"

namespace WyWidgets {

void startIfIdle(QTimer* timer, int msec)
{
    if (timer && !timer->isActive())
        timer->start(msec);
}

void stopIfActive(QTimer* timer)
{
    if (timer && timer->isActive())
        timer->stop();
}

} // namespace WyWidgets

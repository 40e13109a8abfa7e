#pragma once

#include <QTimer>

namespace WyWidgets {

// The library's single-shot timers are children of their widget, made on first use. A running timer keeps its
// running time: starting it again changes nothing.

/// Starts the timer unless it is null or already running.
void startIfIdle(QTimer* timer, int msec);

/// Stops the timer; null and stopped timers are left alone.
void stopIfActive(QTimer* timer);

} // namespace WyWidgets

#pragma once

#include <QTimer>

namespace WyWidgets {

// The library's single-shot timers are children of their widget, made on first use. A running timer keeps its
// running time: starting it again changes nothing.

/// A stopped single-shot timer, child of `owner`, whose timeout() is connected by name to SLOT(…) `slot` of
/// `owner`, so that a host can disconnect it by name.
QTimer* createSingleShot(QObject* owner, const char* slot);

/// Starts the timer unless it is null or already running, or `msec` is negative.
void startIfIdle(QTimer* timer, int msec);

/// Stops the timer; null and stopped timers are left alone.
void stopIfActive(QTimer* timer);

} // namespace WyWidgets

#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>

/// Lets windows appear, glide and fade before a picture is taken of them.
inline void runEventLoopFor(int msec)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < msec) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QThread::msleep(2);
    }
}

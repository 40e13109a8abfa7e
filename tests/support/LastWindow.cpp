#include "support/LastWindow.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTimer>

namespace WyTest {

int lastWindowClosings(const std::function<void()>& act)
{
    const QSignalSpy closings(qApp, &QGuiApplication::lastWindowClosed);
    QTimer::singleShot(0, qApp, [&act] {
        act();
        QCoreApplication::exit();
    });
    QApplication::exec();
    return closings.count();
}

} // namespace WyTest

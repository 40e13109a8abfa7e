#pragma once

#include "support/Events.h"

#include <QCoreApplication>
#include <QtTest>

#include <functional>

namespace WyTest {

/// Checks that a step of a running indicator repaints it only while it can be seen. Its window does not show
/// yet.
inline void verifyStepsPaintOnlyWhenSeen(QWidget& indicator, const std::function<void()>& step)
{
    QWidget& window = *indicator.window();
    EventCounter paints(&indicator, QEvent::Paint);
    const auto paintsPerStep = [&] {
        QCoreApplication::processEvents();
        paints.reset();
        step();
        QCoreApplication::processEvents();
        return paints.count();
    };
    QVERIFY(!window.isVisible());
    QCOMPARE(paintsPerStep(), 0);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(paintsPerStep(), 1);
    window.showMinimized();
    QTRY_VERIFY(window.isMinimized());
    QCOMPARE(paintsPerStep(), 0);
    window.showNormal();
    QTRY_COMPARE(paintsPerStep(), 1);
    indicator.hide();
    QCOMPARE(paintsPerStep(), 0);
}

} // namespace WyTest

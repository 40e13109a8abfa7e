#pragma once

#include <QColor>
#include <QImage>
#include <QString>

#include <functional>

class QPainter;
class QWidget;

namespace WyTest {

/// An ARGB32 (premultiplied) picture of the widget at the given device pixel ratio. The widget's own pixels
/// come on top of transparency: no window background is painted below them.
QImage picture(QWidget* widget, qreal devicePixelRatio = 1.0);

/// A transparent picture of the given size that `paint` has painted on: what a test expects to see.
QImage painted(QSize size, const std::function<void(QPainter&)>& paint, qreal devicePixelRatio = 1.0);

/// Empty if the pictures agree; else says where and how they differ first. `tolerance` is the largest allowed
/// difference of one channel.
QString difference(const QImage& actual, const QImage& expected, int tolerance = 0);

} // namespace WyTest

/// Fails the running test unless both pictures have the same size and pixels.
#define WY_COMPARE_PICTURES(actual, expected)                                                                \
    do {                                                                                                     \
        const QString wyDifference = WyTest::difference(actual, expected);                                   \
        QVERIFY2(wyDifference.isEmpty(), qPrintable(wyDifference));                                          \
    } while (false)

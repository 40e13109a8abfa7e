#include "support/Painting.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QWidget>

namespace WyTest {

namespace {

constexpr qreal kMetersPerInch = 0.0254;

QImage blank(QSize size, qreal devicePixelRatio)
{
    QImage image(size * devicePixelRatio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    // Text comes out as on a widget only at the screen's resolution.
    const qreal dotsPerMeter = QGuiApplication::primaryScreen()->logicalDotsPerInch() / kMetersPerInch;
    image.setDotsPerMeterX(qRound(dotsPerMeter));
    image.setDotsPerMeterY(qRound(dotsPerMeter));
    image.fill(Qt::transparent);
    return image;
}

int largestDifference(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
}

} // namespace

QImage picture(QWidget* widget, qreal devicePixelRatio)
{
    QImage image = blank(widget->size(), devicePixelRatio);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

QImage painted(QSize size, const std::function<void(QPainter&)>& paint, qreal devicePixelRatio)
{
    QImage image = blank(size, devicePixelRatio);
    QPainter painter(&image);
    paint(painter);
    return image;
}

QString difference(const QImage& actual, const QImage& expected, int tolerance)
{
    if (actual.size() != expected.size()) {
        return QStringLiteral("size %1 x %2, expected %3 x %4")
            .arg(actual.width())
            .arg(actual.height())
            .arg(expected.width())
            .arg(expected.height());
    }
    if (actual == expected)
        return QString();
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            const QRgb a = actual.pixel(x, y);
            const QRgb b = expected.pixel(x, y);
            if (largestDifference(a, b) > tolerance) {
                return QStringLiteral("pixel (%1, %2) is #%3, expected #%4")
                    .arg(x)
                    .arg(y)
                    .arg(a, 8, 16, QLatin1Char('0'))
                    .arg(b, 8, 16, QLatin1Char('0'));
            }
        }
    }
    return QString();
}

} // namespace WyTest

#include "WyWidgets/internal/painting/RoundedBar.h"

#include "support/Painting.h"

#include <QPicture>
#include <QtTest>

#include <random>

using WyWidgets::RoundedBar;

namespace {

constexpr QSize kCanvas(260, 40);
int brushesMade = 0;

QBrush gradient(QSize size)
{
    ++brushesMade;
    QLinearGradient gradient(0, size.height() / 2, size.width(), size.height() / 2);
    gradient.setColorAt(0.0, QColor(43, 163, 211, 194));
    gradient.setColorAt(1.0, QColor(80, 199, 98, 194));
    return gradient;
}

QBrush steepGradient(QSize size)
{
    ++brushesMade;
    QLinearGradient gradient(0, 0, size.width() / 4, 0);
    gradient.setSpread(QGradient::ReflectSpread);
    gradient.setColorAt(0.0, QColor(255, 0, 20, 255));
    gradient.setColorAt(0.3, QColor(0, 250, 90, 30));
    gradient.setColorAt(1.0, QColor(7, 60, 255, 140));
    return gradient;
}

QBrush solid(QSize)
{
    ++brushesMade;
    return QColor(255, 255, 255, 77);
}

RoundedBar::Form form(qreal top = 6, qreal height = 4, qreal radius = 2, QBrush (*brush)(QSize) = gradient)
{
    return {QRectF(8, top, 216, height), radius, brush, QSize(216, 16)};
}

/// A canvas with something below, for blending rounds.
QImage canvas(qreal scale, QImage::Format format = QImage::Format_ARGB32_Premultiplied)
{
    QImage image(kCanvas * scale, format);
    image.setDevicePixelRatio(scale);
    std::mt19937 random(11);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixelColor(x, y, QColor(int(random() % 256), int(random() % 256), int(random() % 256)));
    }
    return image;
}

/// The bar as it is to look.
void paintPlainly(QPainter& painter, const RoundedBar::Form& form, qreal length)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(1, 1, 1, 0));
    painter.setBrush(form.brush(form.brushSize));
    painter.drawRoundedRect(QRectF(form.rect.x(), form.rect.y(), length, form.rect.height()), form.radius,
                            form.radius, Qt::AbsoluteSize);
}

QImage plain(QImage image, const RoundedBar::Form& form, qreal length, QPointF offset = QPointF())
{
    QPainter painter(&image);
    painter.translate(offset);
    paintPlainly(painter, form, length);
    return image;
}

QImage paint(RoundedBar& bar, QImage image, const RoundedBar::Form& form, qreal length,
             QPointF offset = QPointF())
{
    QPainter painter(&image);
    painter.translate(offset);
    bar.paint(&painter, form, length);
    return image;
}

/// Paints until the bar has its pictures; says whether it paints from them now.
bool paintsFromPictures(RoundedBar& bar, qreal scale, const RoundedBar::Form& form, qreal length)
{
    const QImage below = canvas(scale);
    for (int i = 0; i < 3; ++i) {
        brushesMade = 0;
        paint(bar, below, form, length);
    }
    return brushesMade == 0;
}

} // namespace

class TestRoundedBar : public QObject
{
    Q_OBJECT

private slots:
    void keepsPicturesFromTheSecondPaintingOn();
    void anyLengthComesFromTheSamePictures();
    void pixelsAreThoseOfPlainPainting_data();
    void pixelsAreThoseOfPlainPainting();
    void placesOnTheDeviceMatterByTheirFractionOnly();
    void anotherFormOrScaleStartsAfresh_data();
    void anotherFormOrScaleStartsAfresh();
    void paintsPlainlyWhatPicturesCannot_data();
    void paintsPlainlyWhatPicturesCannot();
    void turnedPaintersPaintPlainly();
    void otherEnginesPaintPlainly();
    void leavesThePainterAsItWas();
};

void TestRoundedBar::keepsPicturesFromTheSecondPaintingOn()
{
    RoundedBar bar;
    const QImage below = canvas(1);
    brushesMade = 0;
    paint(bar, below, form(), 100);
    QCOMPARE(brushesMade, 1); // plainly
    paint(bar, below, form(), 100);
    QVERIFY(brushesMade > 1);
    brushesMade = 0;
    for (int i = 0; i < 5; ++i)
        paint(bar, below, form(), 100);
    QCOMPARE(brushesMade, 0);
}

void TestRoundedBar::anyLengthComesFromTheSamePictures()
{
    for (qreal scale : {1.0, 1.5, 2.0, 3.0}) {
        RoundedBar bar;
        QVERIFY(paintsFromPictures(bar, scale, form(), 100));
        brushesMade = 0;
        const QImage below = canvas(scale);
        for (int length = 16; length <= 216; length += 2)
            paint(bar, below, form(), length);
        QCOMPARE(brushesMade, 0);
    }
}

void TestRoundedBar::pixelsAreThoseOfPlainPainting_data()
{
    QTest::addColumn<qreal>("scale");
    QTest::addColumn<QImage::Format>("format");
    for (qreal scale : {1.0, 1.1, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        QTest::addRow("scale %g, with alpha", scale) << scale << QImage::Format_ARGB32_Premultiplied;
        QTest::addRow("scale %g, opaque", scale) << scale << QImage::Format_RGB32;
    }
}

void TestRoundedBar::pixelsAreThoseOfPlainPainting()
{
    QFETCH(qreal, scale);
    QFETCH(QImage::Format, format);
    const QImage below = canvas(scale, format);
    const QVector<RoundedBar::Form> forms = {form(8, 2, 1),
                                             form(6, 4, 2),
                                             form(8, 2, 1, solid),
                                             form(6, 4, 2, solid),
                                             form(3.5, 11, 5.5, steepGradient),
                                             form(2, 7, 0, steepGradient),
                                             form(2, 9, 3, steepGradient)};
    for (const RoundedBar::Form& each : forms) {
        RoundedBar bar;
        for (qreal length = 216; length > -3; length -= 1) {
            WY_COMPARE_PICTURES(paint(bar, below, each, length), plain(below, each, length));
        }
        for (int i = 0; i < 40; ++i) { // and not only from right to left
            const qreal length = (i * 89 % 216) + 0.25 * (i % 5);
            WY_COMPARE_PICTURES(paint(bar, below, each, length), plain(below, each, length));
        }
    }
}

void TestRoundedBar::placesOnTheDeviceMatterByTheirFractionOnly()
{
    for (qreal scale : {1.0, 1.5, 2.0}) {
        const QImage below = canvas(scale);
        RoundedBar bar;
        QVERIFY(paintsFromPictures(bar, scale, form(), 100));
        brushesMade = 0;
        paint(bar, below, form(), 100, QPointF(4, 10));
        paint(bar, below, form(), 120, QPointF(20, 2));
        QCOMPARE(brushesMade, 0);
        for (QPointF offset :
             {QPointF(5, 3), QPointF(7, 0), QPointF(0.5, 0.25), QPointF(0, -7), QPointF(0.3, 0.7)}) {
            for (int i = 0; i < 3; ++i) {
                for (int length : {17, 60, 101, 200, 216})
                    WY_COMPARE_PICTURES(paint(bar, below, form(), length, offset),
                                        plain(below, form(), length, offset));
            }
        }
    }
}

void TestRoundedBar::anotherFormOrScaleStartsAfresh_data()
{
    QTest::addColumn<int>("change");
    QTest::newRow("rectangle") << 0;
    QTest::newRow("radius") << 1;
    QTest::newRow("brush") << 2;
    QTest::newRow("size of the brush") << 3;
    QTest::newRow("scale") << 4;
}

void TestRoundedBar::anotherFormOrScaleStartsAfresh()
{
    QFETCH(int, change);
    RoundedBar bar;
    QVERIFY(paintsFromPictures(bar, 1.0, form(), 100));
    RoundedBar::Form other = form();
    if (change == 0)
        other.rect.setTop(5);
    if (change == 1)
        other.radius = 1;
    if (change == 2)
        other.brush = steepGradient;
    if (change == 3)
        other.brushSize = QSize(300, 16);
    const QImage below = canvas(change == 4 ? 2.0 : 1.0);
    for (int i = 0; i < 3; ++i)
        WY_COMPARE_PICTURES(paint(bar, below, other, 100), plain(below, other, 100));
}

void TestRoundedBar::paintsPlainlyWhatPicturesCannot_data()
{
    QTest::addColumn<qreal>("greatest");
    QTest::addColumn<qreal>("length");
    QTest::newRow("nothing") << 216.0 << 0.0;
    QTest::newRow("backwards") << 216.0 << -50.0;
    QTest::newRow("far backwards") << 216.0 << -2147483648.0;
    QTest::newRow("shorter than its ends") << 216.0 << 3.0;
    QTest::newRow("longer than its form") << 216.0 << 240.0;
    QTest::newRow("a form too long for a picture") << 5000.0 << 100.0;
    QTest::newRow("a form without length") << 0.0 << 0.0;
    QTest::newRow("a form of negative length") << -10.0 << -10.0;
    QTest::newRow("ending within a pixel") << 216.0 << 100.5;
}

void TestRoundedBar::paintsPlainlyWhatPicturesCannot()
{
    QFETCH(qreal, greatest);
    QFETCH(qreal, length);
    RoundedBar::Form odd = form();
    odd.rect.setWidth(greatest);
    RoundedBar bar;
    QVERIFY(!paintsFromPictures(bar, 1.0, odd, length));
    WY_COMPARE_PICTURES(paint(bar, canvas(1), odd, length), plain(canvas(1), odd, length));
}

void TestRoundedBar::turnedPaintersPaintPlainly()
{
    for (const QTransform& turn :
         {QTransform().rotate(7), QTransform().shear(0.1, 0), QTransform::fromScale(1, 2),
          QTransform::fromScale(-1, -1).translate(-250, -30)}) {
        RoundedBar bar;
        for (int i = 0; i < 3; ++i) {
            QImage actual = canvas(1);
            QImage expected = actual;
            QPainter painter(&actual);
            painter.setTransform(turn);
            bar.paint(&painter, form(), 100);
            painter.end();
            painter.begin(&expected);
            painter.setTransform(turn);
            paintPlainly(painter, form(), 100);
            painter.end();
            WY_COMPARE_PICTURES(actual, expected);
        }
    }
}

void TestRoundedBar::otherEnginesPaintPlainly()
{
    RoundedBar bar;
    QVERIFY(paintsFromPictures(bar, 1.0, form(), 100));
    QPicture recorded;
    QPainter painter(&recorded);
    bar.paint(&painter, form(), 100);
    painter.end();
    QImage actual = canvas(1);
    painter.begin(&actual);
    painter.drawPicture(0, 0, recorded);
    painter.end();
    WY_COMPARE_PICTURES(actual, plain(canvas(1), form(), 100));
}

void TestRoundedBar::leavesThePainterAsItWas()
{
    for (qreal scale : {1.0, 2.0}) {
        QImage image = canvas(scale);
        QPainter painter(&image);
        painter.translate(3, 2);
        painter.setBrush(Qt::red);
        painter.setPen(Qt::blue);
        const QTransform world = painter.worldTransform();
        RoundedBar bar;
        for (int i = 0; i < 3; ++i) {
            bar.paint(&painter, form(), 100);
            QCOMPARE(painter.worldTransform(), world);
            QCOMPARE(painter.brush(), QBrush(Qt::red));
            QCOMPARE(painter.pen(), QPen(Qt::blue));
            QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
        }
    }
}

QTEST_MAIN(TestRoundedBar)
#include "tst_roundedbar.moc"

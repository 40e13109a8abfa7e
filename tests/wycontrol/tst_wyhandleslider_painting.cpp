#include "WyWidgets/wycontrol/WyHandleSlider.h"

#include <QtTest>

#include <random>

using WyWidgets::WyHandleSlider;

namespace {

enum Below { Nothing, Colour, Noise };

/// What the slider is painted upon.
QImage canvas(QSize size, qreal scale, Below below,
              QImage::Format format = QImage::Format_ARGB32_Premultiplied)
{
    QImage image(size * scale, format);
    image.setDevicePixelRatio(scale);
    image.fill(below == Colour ? QColor(30, 40, 90) : QColor(0, 0, 0, 0));
    std::mt19937 random(3);
    for (int y = 0; below == Noise && y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixelColor(x, y, QColor::fromRgb(QRgb(random()) | 0xff000000));
    }
    return image;
}

QImage painted(QWidget& slider, QImage image)
{
    slider.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

/// The bar, painted plainly.
QImage expected(QImage image, QSize size, double ratio, bool hovered)
{
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setPen(QColor(1, 1, 1, 0));
    const double top = hovered ? 6.0 : 8.0;
    const double height = hovered ? 4.0 : 2.0;
    const double radius = hovered ? 2.0 : 1.0;
    const int travel = size.width() - 16;
    painter.setBrush(QColor(255, 255, 255, 77));
    painter.drawRoundedRect(QRectF(8.0, top, travel, height), radius, radius, Qt::AbsoluteSize);
    QLinearGradient gradient(QPointF(0, size.height() / 2), QPointF(size.width(), size.height() / 2));
    gradient.setColorAt(0.0, QColor(43, 163, 211, 194));
    gradient.setColorAt(1.0, QColor(80, 199, 98, 194));
    painter.setBrush(gradient);
    painter.drawRoundedRect(QRectF(8.0, top, int(travel * ratio), height), radius, radius, Qt::AbsoluteSize);
    return image;
}

void hover(WyHandleSlider& slider)
{
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(&slider, &enter);
    slider.findChild<QLabel*>()->hide(); // its look is the host's
}

} // namespace

class TestWyHandleSliderPainting : public QObject
{
    Q_OBJECT

private slots:
    void showsEveryPositionAsPaintedPlainly_data();
    void showsEveryPositionAsPaintedPlainly();
    void showsSizesOfAllKinds_data();
    void showsSizesOfAllKinds();
    void showsPositionsBeyondTheEnds();
    void theFillEndsUnderTheHandlesCentre();
    void theGrooveGrowsWhileHovered();
    void aStyleSheetPaintsTheHandle();
};

void TestWyHandleSliderPainting::showsEveryPositionAsPaintedPlainly_data()
{
    QTest::addColumn<qreal>("scale");
    QTest::addColumn<bool>("hovered");
    QTest::addColumn<int>("below");
    for (qreal scale : {1.0, 1.5, 2.0}) {
        for (bool hovered : {false, true}) {
            for (int below : {Nothing, Colour, Noise})
                QTest::addRow("scale %g, %s, upon %d", scale, hovered ? "hovered" : "plain", below)
                    << scale << hovered << below;
        }
    }
}

void TestWyHandleSliderPainting::showsEveryPositionAsPaintedPlainly()
{
    QFETCH(qreal, scale);
    QFETCH(bool, hovered);
    QFETCH(int, below);
    const QSize size(216, 16);
    WyHandleSlider slider;
    slider.resize(size);
    if (hovered)
        hover(slider);
    const QImage image = canvas(size, scale, Below(below));
    for (int round = 0; round < 3; ++round) { // painted, remembered, recalled
        for (int pos = 0; pos <= 200; ++pos) {
            slider.SetMaxValue(200);
            slider.SetSliderPos(pos);
            QVERIFY2(painted(slider, image) == expected(image, size, pos / 200.0, hovered),
                     qPrintable(QStringLiteral("round %1, position %2").arg(round).arg(pos)));
        }
    }
}

void TestWyHandleSliderPainting::showsSizesOfAllKinds_data()
{
    QTest::addColumn<QSize>("size");
    for (QSize size : {QSize(1, 1), QSize(15, 16), QSize(16, 16), QSize(17, 16), QSize(20, 16), QSize(22, 17),
                       QSize(28, 16), QSize(61, 9), QSize(80, 16), QSize(137, 33), QSize(640, 16),
                       QSize(1500, 40), QSize(5000, 16)})
        QTest::addRow("%d x %d", size.width(), size.height()) << size;
}

void TestWyHandleSliderPainting::showsSizesOfAllKinds()
{
    QFETCH(QSize, size);
    for (qreal scale : {1.0, 1.5, 2.0}) {
        const QImage image = canvas(size, scale, Colour, QImage::Format_RGB32);
        for (bool hovered : {false, true}) {
            WyHandleSlider slider;
            slider.resize(size);
            if (hovered)
                hover(slider);
            for (int pos : {0, 1, 2, 3, 5, 50, 50, 51, 99, 100}) {
                slider.SetSliderPos(pos);
                QVERIFY2(painted(slider, image) == expected(image, size, pos / 100.0, hovered),
                         qPrintable(QStringLiteral("scale %1, position %2").arg(scale).arg(pos)));
            }
        }
    }
}

void TestWyHandleSliderPainting::showsPositionsBeyondTheEnds()
{
    const QSize size(216, 16);
    const QImage image = canvas(size, 1.0, Colour);
    for (int pos : {101, 103, 104, 107, 108, 109, 150, 1000, 100000, -1, -3, -4, -50, -1000}) {
        WyHandleSlider slider;
        slider.resize(size);
        slider.SetSliderPos(pos);
        for (int round = 0; round < 3; ++round)
            QVERIFY2(painted(slider, image) == expected(image, size, pos / 100.0, false),
                     qPrintable(QString::number(pos)));
    }
}

void TestWyHandleSliderPainting::theFillEndsUnderTheHandlesCentre()
{
    const QSize size(216, 16);
    WyHandleSlider slider;
    slider.resize(size);
    hover(slider);
    slider.SetSliderPos(50);
    const QImage image = painted(slider, canvas(size, 1.0, Nothing));
    const int centre = slider.findChild<QLabel*>()->x() + 8;
    QCOMPARE(centre, 108);
    QVERIFY(image.pixelColor(centre - 3, 8).alpha() > 190); // groove and fill
    QCOMPARE(image.pixelColor(centre, 8).alpha(), 77);      // groove
}

void TestWyHandleSliderPainting::theGrooveGrowsWhileHovered()
{
    const QSize size(216, 16);
    WyHandleSlider slider;
    slider.resize(size);
    const auto rows = [&] {
        const QImage image = painted(slider, canvas(size, 1.0, Nothing));
        QVector<int> rows;
        for (int y = 0; y < 16; ++y) {
            if (image.pixelColor(150, y).alpha() > 0)
                rows += y;
        }
        return rows;
    };
    QCOMPARE(rows(), (QVector<int>{8, 9}));
    hover(slider);
    QCOMPARE(rows(), (QVector<int>{6, 7, 8, 9}));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&slider, &leave);
    QCOMPARE(rows(), (QVector<int>{6, 7, 8, 9})); // for a second
    slider.findChild<QTimer*>()->setInterval(1);
    QTRY_COMPARE(rows(), (QVector<int>{8, 9}));
}

void TestWyHandleSliderPainting::aStyleSheetPaintsTheHandle()
{
    WyHandleSlider slider;
    slider.setStyleSheet(QStringLiteral("#label_pos { background: #102030; }"));
    slider.resize(216, 16);
    slider.SetSliderPos(50);
    slider.show();
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(&slider, &enter);
    const QImage image = slider.grab().toImage();
    QCOMPARE(image.pixelColor(108, 2), QColor(0x10, 0x20, 0x30));
    QVERIFY(image.pixelColor(90, 2) != QColor(0x10, 0x20, 0x30));
}

QTEST_MAIN(TestWyHandleSliderPainting)
#include "tst_wyhandleslider_painting.moc"

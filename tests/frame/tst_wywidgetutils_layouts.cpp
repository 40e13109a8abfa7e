#include "WyWidgets/frame/WyWidgetUtils.h"

#include "support/FakeScreens.h"
#include "support/Painting.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QScreen>
#include <QtTest>

#include <cmath>

using WyTest::FakeScreen;
using WyTest::FakeScreens;
using WyWidgets::WyWidgetUtils;

namespace {

QImage filled(QSize size, const QColor& color)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

/// Different in every pixel, so that shifted and stretched copies show.
QImage pattern(QSize size, int seed)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb((x * 7 + seed) % 256, (y * 5 + seed) % 256, (x + y + seed * 40) % 256));
    }
    return image;
}

int toward0(double value)
{
    return int(std::trunc(value));
}

} // namespace

/// Screens that no test machine has. The display scale is read once in a process, so every scale is a run of
/// its own (QT_SCALE_FACTOR); a platform's geometry counts in its own pixels, QScreen divides sizes by the
/// factor and keeps positions.
class TestWyWidgetUtilsLayouts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theScaleIsThatOfThePrimaryScreen();
    void geometriesGoByIndex();
    void indexesOutOfRangeHaveNoGeometry();
    void theUnionSpansAllScreens();
    void withoutScreensEverythingIsEmpty();
    void aGrabHasTheScreensSizeInPixels_data();
    void aGrabHasTheScreensSizeInPixels();
    void aGrabAsksForTheScreensGeometry();
    void aGrabFillsItsPicture();
    void aGrabIsTransparentWhereThePlatformHasNothing();
    void grabsOfUnknownScreensAreNull();
    void theCanvasUnitesScaledSizesAtUnscaledPlaces_data();
    void theCanvasUnitesScaledSizesAtUnscaledPlaces();
    void theCanvasShowsEveryScreenAtItsOffset();
    void laterScreensCoverEarlierOnesOnTheCanvas();
    void pointsOutsideEveryScreenAreNotFound();
    void mappingTruncatesNegativeOriginsTowardZero();
    void generatedLayoutsMapLikeTheModel();

private:
    /// Screens of these places in device-independent pixels at the run's scale.
    QVector<FakeScreen> screens(const QVector<QRect>& places) const;

    double m_scale = 0;
};

void TestWyWidgetUtilsLayouts::initTestCase()
{
    m_scale = qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1")).toDouble();
}

QVector<FakeScreen> TestWyWidgetUtilsLayouts::screens(const QVector<QRect>& places) const
{
    QVector<FakeScreen> screens;
    for (const QRect& place : places) {
        FakeScreen screen;
        screen.geometry = QRect(place.topLeft(), QSizeF(place.size() * m_scale).toSize());
        screen.pixels = pattern(screen.geometry.size(), screens.size());
        screens += screen;
    }
    return screens;
}

void TestWyWidgetUtilsLayouts::theScaleIsThatOfThePrimaryScreen()
{
    QCOMPARE(WyWidgetUtils::GetDpiScale(), m_scale);
    FakeScreen dense;
    dense.geometry = QRect(0, 0, 100, 100);
    dense.devicePixelRatio = 4;
    const FakeScreens fake({dense});
    QCOMPARE(QGuiApplication::primaryScreen()->devicePixelRatio(), 4 * m_scale);
    QCOMPARE(WyWidgetUtils::GetDpiScale(), m_scale); // read once
}

void TestWyWidgetUtilsLayouts::geometriesGoByIndex()
{
    QVector<FakeScreen> two = screens({QRect(0, 0, 1440, 900), QRect(-800, 60, 800, 600)});
    two[0].availableGeometry = two.at(0).geometry.adjusted(0, int(24 * m_scale), 0, 0);
    const FakeScreens fake(two);
    QCOMPARE(WyWidgetUtils::GetScreenGeometry(0, false), QRect(0, 0, 1440, 900));
    QCOMPARE(WyWidgetUtils::GetScreenGeometry(0, true), QRect(0, 24, 1440, 876));
    QCOMPARE(WyWidgetUtils::GetScreenGeometry(1, false), QRect(-800, 60, 800, 600));
    QCOMPARE(WyWidgetUtils::GetScreenGeometry(1, true), QRect(-800, 60, 800, 600));
}

void TestWyWidgetUtilsLayouts::indexesOutOfRangeHaveNoGeometry()
{
    const FakeScreens fake(screens({QRect(0, 0, 1440, 900), QRect(1440, 0, 800, 600)}));
    for (const int index : {-1, 2, 3, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        for (const bool available : {false, true}) {
            const QRect geometry = WyWidgetUtils::GetScreenGeometry(index, available);
            QCOMPARE(geometry, QRect(QPoint(0, 0), QPoint(-1, -1)));
        }
    }
}

void TestWyWidgetUtilsLayouts::theUnionSpansAllScreens()
{
    QVector<FakeScreen> three =
        screens({QRect(0, 0, 1440, 900), QRect(1440, -100, 800, 600), QRect(-1000, 1000, 400, 300)});
    three[2].availableGeometry = three.at(2).geometry.adjusted(int(40 * m_scale), 0, 0, 0);
    const FakeScreens fake(three);
    QCOMPARE(WyWidgetUtils::GetAllScreenGeometry(false), QRect(QPoint(-1000, -100), QPoint(2239, 1299)));
    QCOMPARE(WyWidgetUtils::GetAllScreenGeometry(true), QRect(QPoint(-960, -100), QPoint(2239, 1299)));
}

void TestWyWidgetUtilsLayouts::withoutScreensEverythingIsEmpty()
{
    const FakeScreens fake({});
    QVERIFY(QGuiApplication::screens().isEmpty());
    QCOMPARE(WyWidgetUtils::GetScreenGeometry(0, false), QRect());
    QCOMPARE(WyWidgetUtils::GetAllScreenGeometry(false), QRect());
    QCOMPARE(WyWidgetUtils::GetAllScreenGeometry(true), QRect());
    QVERIFY(WyWidgetUtils::GrabScreenPixMap(0).isNull());
    QVERIFY(WyWidgetUtils::GrabAllScreenPixMap().isNull());
    bool found = true;
    QCOMPARE(WyWidgetUtils::MapToGlobal(QPoint(3, 4), found), QPoint(3, 4));
    QVERIFY(!found);
    QCOMPARE(WyWidgetUtils::MapToParent(QPoint(3, 4)), QPoint(3, 4));
}

void TestWyWidgetUtilsLayouts::aGrabHasTheScreensSizeInPixels_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("even") << QSize(1440, 900);
    QTest::newRow("odd") << QSize(101, 63);
    QTest::newRow("tiny") << QSize(1, 3);
}

void TestWyWidgetUtilsLayouts::aGrabHasTheScreensSizeInPixels()
{
    QFETCH(QSize, size);
    const FakeScreens fake(screens({QRect(QPoint(0, 0), size)}));
    const QSize logical = WyWidgetUtils::GetScreenGeometry(0, false).size();
    const QPixmap one = WyWidgetUtils::GrabScreenPixMap(0);
    // To the nearest pixel, halves away from zero; the canvas truncates.
    QCOMPARE(one.size(),
             QSize(int(std::round(logical.width() * m_scale)), int(std::round(logical.height() * m_scale))));
    QCOMPARE(one.devicePixelRatio(), 1.0);
    const QPixmap all = WyWidgetUtils::GrabAllScreenPixMap();
    QCOMPARE(all.size(), QSize(toward0(logical.width() * m_scale), toward0(logical.height() * m_scale)));
    QCOMPARE(all.devicePixelRatio(), 1.0);
}

void TestWyWidgetUtilsLayouts::aGrabAsksForTheScreensGeometry()
{
    const QVector<FakeScreen> two = screens({QRect(0, 0, 90, 60), QRect(90, 30, 60, 40)});
    const FakeScreens fake(two);
    WyWidgetUtils::GrabScreenPixMap(1);
    QCOMPARE(fake.grabbedAreas(0), QVector<QRect>());
    // Qt multiplies what it is asked for by the scale factor.
    QCOMPARE(fake.grabbedAreas(1),
             QVector<QRect>({QRect(QPoint(90, 30) * m_scale, two.at(1).geometry.size())}));
}

void TestWyWidgetUtilsLayouts::aGrabFillsItsPicture()
{
    // A platform that counts from the screen's corner: the picture shows all of the screen.
    QVector<FakeScreen> one = screens({QRect(0, 0, 60, 40)});
    {
        const FakeScreens fake(one);
        WY_COMPARE_PICTURES(WyWidgetUtils::GrabScreenPixMap(0).toImage(), one.at(0).pixels);
    }
    // A denser screen than the primary one is scaled down to its own size at the primary scale.
    one[0].devicePixelRatio = 2;
    one[0].pixels = filled(one.at(0).geometry.size() * 2, Qt::red);
    const FakeScreens fake(one);
    WY_COMPARE_PICTURES(WyWidgetUtils::GrabScreenPixMap(0).toImage(),
                        filled(one.at(0).geometry.size(), Qt::red));
}

void TestWyWidgetUtilsLayouts::aGrabIsTransparentWhereThePlatformHasNothing()
{
    // Asked for the screen's place, a platform that counts from the screen's corner finds the lower part
    // only.
    const QVector<FakeScreen> two = screens({QRect(0, 0, 60, 40), QRect(0, 10, 60, 40)});
    const FakeScreens fake(two);
    const QSize size = two.at(1).geometry.size();
    const int missing = qRound(10 * m_scale);
    QImage expected = filled(size, Qt::transparent);
    QPainter painter(&expected);
    painter.drawImage(0, 0, two.at(1).pixels.copy(0, missing, size.width(), size.height() - missing));
    painter.end();
    WY_COMPARE_PICTURES(WyWidgetUtils::GrabScreenPixMap(1).toImage(), expected);
}

void TestWyWidgetUtilsLayouts::grabsOfUnknownScreensAreNull()
{
    const FakeScreens fake(screens({QRect(0, 0, 60, 40)}));
    QVERIFY(WyWidgetUtils::GrabScreenPixMap(-1).isNull());
    QVERIFY(WyWidgetUtils::GrabScreenPixMap(1).isNull());
    QCOMPARE(fake.grabbedAreas(0), QVector<QRect>());
}

void TestWyWidgetUtilsLayouts::theCanvasUnitesScaledSizesAtUnscaledPlaces_data()
{
    QTest::addColumn<QVector<QRect>>("places");
    QTest::newRow("one") << QVector<QRect>{{0, 0, 1440, 900}};
    QTest::newRow("side by side") << QVector<QRect>{{0, 0, 1440, 900}, {1440, 0, 800, 600}};
    QTest::newRow("left and above") << QVector<QRect>{{0, 0, 700, 500}, {-333, -201, 332, 200}};
    QTest::newRow("far apart") << QVector<QRect>{{500, 400, 100, 100}, {-700, 900, 60, 50}};
}

void TestWyWidgetUtilsLayouts::theCanvasUnitesScaledSizesAtUnscaledPlaces()
{
    QFETCH(QVector<QRect>, places);
    const FakeScreens fake(screens(places));
    int left = places.first().x();
    int top = places.first().y();
    int right = left;
    int bottom = top;
    for (int i = 0; i < places.size(); ++i) {
        const QSize size = WyWidgetUtils::GetScreenGeometry(i, false).size();
        left = qMin(left, places.at(i).x());
        top = qMin(top, places.at(i).y());
        right = qMax(right, places.at(i).x() + toward0(size.width() * m_scale));
        bottom = qMax(bottom, places.at(i).y() + toward0(size.height() * m_scale));
    }
    QCOMPARE(WyWidgetUtils::GrabAllScreenPixMap().size(), QSize(right - left, bottom - top));
}

void TestWyWidgetUtilsLayouts::theCanvasShowsEveryScreenAtItsOffset()
{
    const QVector<FakeScreen> two = screens({QRect(0, 0, 60, 40), QRect(-150, 90, 40, 30)});
    const FakeScreens fake(two);
    const QImage canvas = WyWidgetUtils::GrabAllScreenPixMap().toImage();
    QImage expected = filled(canvas.size(), Qt::transparent);
    QPainter painter(&expected);
    painter.drawImage(QPoint(150, 0), two.at(0).pixels);
    painter.drawImage(QPoint(0, 90), two.at(1).pixels);
    painter.end();
    WY_COMPARE_PICTURES(canvas, expected);
    // Each screen was grabbed whole.
    for (const int index : {0, 1})
        QCOMPARE(fake.grabbedAreas(index).size(), 1);
    QCOMPARE(fake.grabbedAreas(1).first().topLeft(), QPoint(0, 0));
}

void TestWyWidgetUtilsLayouts::laterScreensCoverEarlierOnesOnTheCanvas()
{
    // Positions are not scaled, so that scaled screens run into each other.
    const QVector<FakeScreen> two = screens({QRect(0, 0, 60, 40), QRect(30, 0, 60, 40)});
    const FakeScreens fake(two);
    const QImage canvas = WyWidgetUtils::GrabAllScreenPixMap().toImage();
    WY_COMPARE_PICTURES(canvas.copy(QRect(QPoint(30, 0), two.at(1).pixels.size())), two.at(1).pixels);
    WY_COMPARE_PICTURES(canvas.copy(0, 0, 30, 40), two.at(0).pixels.copy(0, 0, 30, 40));
}

void TestWyWidgetUtilsLayouts::pointsOutsideEveryScreenAreNotFound()
{
    const FakeScreens fake(screens({QRect(-100, -50, 60, 40), QRect(200, 100, 60, 40)}));
    bool found = true;
    QCOMPARE(WyWidgetUtils::MapToGlobal(QPoint(5000, 6000), found), QPoint(4900, 5950));
    QVERIFY(!found);
    QCOMPARE(WyWidgetUtils::MapToParent(QPoint(5000, 6000)), QPoint(5100, 6050));
    const int highest = std::numeric_limits<int>::max();
    QCOMPARE(WyWidgetUtils::MapToParent(QPoint(highest, highest)), QPoint(highest, highest));
    const int lowest = std::numeric_limits<int>::min();
    QCOMPARE(WyWidgetUtils::MapToGlobal(QPoint(lowest, lowest), found), QPoint(lowest, lowest));
}

void TestWyWidgetUtilsLayouts::mappingTruncatesNegativeOriginsTowardZero()
{
    if (m_scale != 2.0)
        QSKIP("worked out for scale 2");
    const FakeScreens fake(screens({QRect(-101, -51, 60, 40)}));
    // The scaled corner is (-50, -25), not (-51, -26).
    bool found = false;
    QCOMPARE(WyWidgetUtils::MapToGlobal(QPoint(51, 26), found), QPoint(-101, -51));
    QVERIFY(found);
    QCOMPARE(WyWidgetUtils::MapToGlobal(QPoint(110, 65), found), QPoint(-42, -12));
    QVERIFY(found);
    QCOMPARE(WyWidgetUtils::MapToGlobal(QPoint(50, 26), found), QPoint(-51, -25));
    QVERIFY(!found);
    QCOMPARE(WyWidgetUtils::MapToGlobal(QPoint(111, 65), found), QPoint(10, 14));
    QVERIFY(!found);
    QCOMPARE(WyWidgetUtils::MapToParent(QPoint(-101, -51)), QPoint(51, 26));
}

void TestWyWidgetUtilsLayouts::generatedLayoutsMapLikeTheModel()
{
    QRandomGenerator random(20240503);
    const auto between = [&random](int lowest, int highest) {
        return lowest + int(random.bounded(highest - lowest + 1));
    };
    for (int layout = 0; layout < 150; ++layout) {
        QVector<QRect> places;
        for (int count = between(1, 4); count > 0; --count)
            places += QRect(between(-900, 900), between(-900, 900), between(1, 700), between(1, 700));
        const FakeScreens fake(screens(places));
        int left = places.first().x();
        int top = places.first().y();
        for (int i = 0; i < places.size(); ++i) {
            places[i] = WyWidgetUtils::GetScreenGeometry(i, false);
            left = qMin(left, places.at(i).x());
            top = qMin(top, places.at(i).y());
        }
        for (int i = 0; i < 200; ++i) {
            const QPoint point(between(-300, 3000), between(-300, 3000));
            QPoint expected(point.x() + left, point.y() + top);
            bool expectedFound = false;
            for (const QRect& place : qAsConst(places)) {
                const int x = toward0(place.x() / m_scale);
                const int y = toward0(place.y() / m_scale);
                if (expected.x() >= x && expected.x() < x + place.width() && expected.y() >= y &&
                    expected.y() < y + place.height()) {
                    expected += QPoint(place.x() - x, place.y() - y);
                    expectedFound = true;
                    break;
                }
            }
            bool found = !expectedFound;
            QCOMPARE(WyWidgetUtils::MapToGlobal(point, found), expected);
            QCOMPARE(found, expectedFound);

            const QPoint global(between(-1200, 1700), between(-1200, 1700));
            QPoint canvas(global.x() - left, global.y() - top);
            for (const QRect& place : qAsConst(places)) {
                if (global.x() >= place.x() && global.x() < place.x() + place.width() &&
                    global.y() >= place.y() && global.y() < place.y() + place.height()) {
                    canvas += QPoint(toward0(place.x() / m_scale) - place.x(),
                                     toward0(place.y() / m_scale) - place.y());
                    break;
                }
            }
            QCOMPARE(WyWidgetUtils::MapToParent(global), canvas);
        }
    }
}

QTEST_MAIN(TestWyWidgetUtilsLayouts)
#include "tst_wywidgetutils_layouts.moc"

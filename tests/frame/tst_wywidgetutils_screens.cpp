#include "WyWidgets/frame/WyWidgetUtils.h"

#include "support/Painting.h"

#include <QPainter>
#include <QScreen>
#include <QtTest>

#include <cmath>
#include <memory>

using WyWidgets::WyWidgetUtils;

namespace {

constexpr QSize kMarkSizePx(80, 60);

/// A window without frame that the window manager leaves where it is: four colors, one a quarter.
class Mark : public QWidget
{
public:
    explicit Mark(QPoint place) : QWidget(nullptr, Qt::X11BypassWindowManagerHint | Qt::FramelessWindowHint)
    {
        setGeometry(QRect(place, kMarkSizePx));
    }

    static QImage picture(QSize size)
    {
        QImage image(size, QImage::Format_RGB32);
        QPainter painter(&image);
        paint(painter, image.rect());
        return image;
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        paint(painter, rect());
    }

private:
    static void paint(QPainter& painter, QRect rect)
    {
        const int middleX = rect.width() / 2;
        const int middleY = rect.height() / 2;
        painter.fillRect(0, 0, middleX, middleY, QColor(200, 30, 40));
        painter.fillRect(middleX, 0, middleX, middleY, QColor(30, 180, 50));
        painter.fillRect(0, middleY, middleX, middleY, QColor(20, 60, 220));
        painter.fillRect(middleX, middleY, middleX, middleY, QColor(240, 220, 10));
    }
};

} // namespace

/// Two real monitors: 1920 x 1080 at the origin and 1280 x 1024 right of it, at the scale of QT_SCALE_FACTOR.
/// Qt divides the sizes by the scale and keeps the places.
class TestWyWidgetUtilsScreens : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void geometriesAreThoseOfTheMonitors();
    void theUnionSpansBothMonitors();
    void theFirstMonitorsGrabShowsIt();
    void theSecondMonitorsGrabHasItsSize();
    void theCanvasShowsBothMonitors();
    void thePointsOfBothMonitorsMapLikeTheModel();
    void aMappedPointIsWhereTheCanvasShowsIt();

private:
    QSize sizeOf(int screen) const;
    void show(QPoint place);

    const QPoint m_origins[2] = {QPoint(0, 0), QPoint(1920, 0)};
    const QSize m_pixels[2] = {QSize(1920, 1080), QSize(1280, 1024)};
    double m_scale = 0;
    std::vector<std::unique_ptr<Mark>> m_marks;
};

void TestWyWidgetUtilsScreens::initTestCase()
{
    m_scale = qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1")).toDouble();
    QCOMPARE(QGuiApplication::screens().size(), 2);
    QCOMPARE(WyWidgetUtils::GetDpiScale(), m_scale);
}

void TestWyWidgetUtilsScreens::cleanup()
{
    m_marks.clear();
}

QSize TestWyWidgetUtilsScreens::sizeOf(int screen) const
{
    return m_pixels[screen] / m_scale;
}

void TestWyWidgetUtilsScreens::show(QPoint place)
{
    m_marks.push_back(std::make_unique<Mark>(place));
    m_marks.back()->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_marks.back().get()));
}

void TestWyWidgetUtilsScreens::geometriesAreThoseOfTheMonitors()
{
    for (const int screen : {0, 1}) {
        QCOMPARE(WyWidgetUtils::GetScreenGeometry(screen, false), QRect(m_origins[screen], sizeOf(screen)));
        const QRect available = WyWidgetUtils::GetScreenGeometry(screen, true);
        QCOMPARE(available, QGuiApplication::screens().at(screen)->availableGeometry());
        QVERIFY(WyWidgetUtils::GetScreenGeometry(screen, false).contains(available));
    }
    QCOMPARE(WyWidgetUtils::GetScreenGeometry(2, false), QRect());
    QCOMPARE(WyWidgetUtils::GetScreenGeometry(-1, true), QRect());
}

void TestWyWidgetUtilsScreens::theUnionSpansBothMonitors()
{
    QCOMPARE(WyWidgetUtils::GetAllScreenGeometry(false),
             QRect(0, 0, 1920 + sizeOf(1).width(), qMax(sizeOf(0).height(), sizeOf(1).height())));
}

void TestWyWidgetUtilsScreens::theFirstMonitorsGrabShowsIt()
{
    const QPoint place(200, 100);
    show(place);
    const QImage mark = Mark::picture(kMarkSizePx * m_scale);
    QTRY_COMPARE(
        WyTest::difference(
            WyWidgetUtils::GrabScreenPixMap(0).toImage().copy(QRect(place * m_scale, mark.size())), mark),
        QString());
    const QPixmap grab = WyWidgetUtils::GrabScreenPixMap(0);
    QCOMPARE(grab.size(), m_pixels[0]);
    QCOMPARE(grab.devicePixelRatio(), 1.0);
}

void TestWyWidgetUtilsScreens::theSecondMonitorsGrabHasItsSize()
{
    // X11 counts from the monitor's corner, so that the place asked for lies beyond the second one.
    const QPixmap grab = WyWidgetUtils::GrabScreenPixMap(1);
    QCOMPARE(grab.size(), m_pixels[1]);
    QCOMPARE(grab.devicePixelRatio(), 1.0);
}

void TestWyWidgetUtilsScreens::theCanvasShowsBothMonitors()
{
    const QPoint within(200, 100);
    for (const QPoint& origin : m_origins)
        show(origin + within);
    const QImage mark = Mark::picture(kMarkSizePx * m_scale);
    for (const QPoint& origin : m_origins) {
        // Within a monitor pixels count; the monitor itself is at its unscaled place.
        const QRect place(origin + within * m_scale, mark.size());
        QTRY_COMPARE(WyTest::difference(WyWidgetUtils::GrabAllScreenPixMap().toImage().copy(place), mark),
                     QString());
    }
    const QPixmap canvas = WyWidgetUtils::GrabAllScreenPixMap();
    QCOMPARE(canvas.size(), QSize(1920 + 1280, 1080));
    QCOMPARE(canvas.devicePixelRatio(), 1.0);
    // Below the smaller monitor there is nothing.
    QCOMPARE(canvas.toImage().pixel(1920 + 600, 1050), qRgba(0, 0, 0, 0));
}

void TestWyWidgetUtilsScreens::thePointsOfBothMonitorsMapLikeTheModel()
{
    const auto inside = [](QPoint point, QPoint corner, QSize size) {
        return point.x() >= corner.x() && point.x() < corner.x() + size.width() && point.y() >= corner.y() &&
               point.y() < corner.y() + size.height();
    };
    for (int x = -50; x < 3300; x += 7) {
        for (int y = -50; y < 1200; y += 11) {
            QPoint global(x, y);
            QPoint canvas(x, y);
            bool expectedFound = false;
            for (const int screen : {1, 0}) { // the first one that holds the point wins: look at it last
                const QPoint corner(int(std::trunc(m_origins[screen].x() / m_scale)), 0);
                if (inside(QPoint(x, y), corner, sizeOf(screen))) {
                    global = QPoint(x, y) + m_origins[screen] - corner;
                    expectedFound = true;
                }
                if (inside(QPoint(x, y), m_origins[screen], sizeOf(screen)))
                    canvas = QPoint(x, y) - m_origins[screen] + corner;
            }
            bool found = !expectedFound;
            QCOMPARE(WyWidgetUtils::MapToGlobal(QPoint(x, y), found), global);
            QCOMPARE(found, expectedFound);
            QCOMPARE(WyWidgetUtils::MapToParent(QPoint(x, y)), canvas);
        }
    }
}

void TestWyWidgetUtilsScreens::aMappedPointIsWhereTheCanvasShowsIt()
{
    // The canvas divided by the scale: the space that the two mappings speak of.
    for (const QPoint& origin : m_origins) {
        const QPoint global = origin + QPoint(30, 40);
        bool found = false;
        QCOMPARE(WyWidgetUtils::MapToGlobal(WyWidgetUtils::MapToParent(global), found), global);
        QVERIFY(found);
        QCOMPARE(WyWidgetUtils::MapToParent(global), QPoint(origin / m_scale + QPoint(30, 40)));
    }
}

QTEST_MAIN(TestWyWidgetUtilsScreens)
#include "tst_wywidgetutils_screens.moc"

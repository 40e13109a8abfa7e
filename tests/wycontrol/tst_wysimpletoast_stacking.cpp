#include "WyWidgets/wycontrol/WySimpleToast.h"

#include "wycontrol/SimpleToasts.h"

#include <QApplication>
#include <QRandomGenerator>
#include <QScreen>
#include <QtTest>

#include <climits>

using SimpleToasts::Column;
using WyWidgets::WySimpleToast;

namespace {

struct Area
{
    int left;
    int top;
    int right;
    int bottom;

    int width() const { return right - left + 1; }
};

/// Where the toast's left and right edges go; `right` is the coordinate of its last pixel column.
struct Span
{
    int left;
    int right;
};

Span modelSpan(int orientation, Area area, int w)
{
    switch (orientation % 4) {
    case 0: {
        const int left = area.width() - w - 36;
        return {left, left + w - 1};
    }
    case 1:
        return {area.left + 36, area.left + 36 + w - 1};
    case 2: {
        const int left = area.left + int(area.width() / 2) - int(w / 2);
        return {left, left + w - 1};
    }
    default:
        return {area.left + 36, area.right - 36};
    }
}

int modelNewestTop(int orientation, Area area, int h, int count)
{
    if (orientation < 4)
        return area.top + count * (h + 10);
    return area.bottom - 35 - count * (h + 10);
}

int modelShiftedTop(int orientation, Area area, int h, int index)
{
    if (orientation < 4)
        return area.top + (index + 1) * (h + 10);
    return area.bottom - area.top - h - 35 - index * (h + 10);
}

WySimpleToast::TOASTR_ORIENTATION orientation(int value)
{
    return static_cast<WySimpleToast::TOASTR_ORIENTATION>(value);
}

/// A window with a child in it, so that the parent's origin has to be mapped.
class NestedParent
{
public:
    NestedParent() : m_child(new QWidget(&m_window)) {}

    Area randomize(QRandomGenerator& random)
    {
        m_window.setGeometry(random.bounded(-3000, 3000), random.bounded(-3000, 3000),
                             random.bounded(1, 5000), random.bounded(1, 5000));
        m_child->setGeometry(random.bounded(-500, 500), random.bounded(-500, 500), random.bounded(1, 5000),
                             random.bounded(1, 5000));
        const QPoint origin = m_window.pos() + m_child->pos();
        return {origin.x(), origin.y(), origin.x() + m_child->width() - 1,
                origin.y() + m_child->height() - 1};
    }
    QWidget* child() const { return m_child; }

private:
    QWidget m_window;
    QWidget* m_child;
};

} // namespace

class TestWySimpleToastStacking : public QObject
{
    Q_OBJECT

private slots:
    void theFirstTopToastKeepsASlotFree();
    void theColumnsStandWhereTheyAreStated_data();
    void theColumnsStandWhereTheyAreStated();
    void theRightColumnIgnoresTheLeftEdgeOfItsArea();
    void theTwoBottomSlotsDiffer();
    void centringTruncatesTwice();
    void aFullWidthToastHasTwoWidths();
    void aNarrowAreaStaysQuiet();
    void anUnknownOrientationMovesNothing();
    void withoutAParentTheDesktopIsTheArea();
    void theAreaIsTakenAnewAtEveryPlacing();
    void aNewOrientationWaitsForTheNextPlacing();
    void farAwaySlotsAreFarAway();
    void allPlacesAgreeWithTheModel();
};

void TestWySimpleToastStacking::theFirstTopToastKeepsASlotFree()
{
    Column column(QRect(100, 50, 1000, 700));
    QCOMPARE(column.show()->y(), 50 + 66);
    QCOMPARE(column.show()->y(), 50 + 2 * 66);
    QCOMPARE(column.show()->y(), 50 + 3 * 66);
}

void TestWySimpleToastStacking::theColumnsStandWhereTheyAreStated_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QRect>("newest");
    QTest::addColumn<QRect>("shifted");
    // The area is 1000 x 700 at (100, 50): its last column is 1099, its last row 749.
    QTest::newRow("top right") << 0 << QRect(784, 116, 180, 56) << QRect(784, 248, 180, 56);
    QTest::newRow("top left") << 1 << QRect(136, 116, 180, 56) << QRect(136, 248, 180, 56);
    QTest::newRow("top centre") << 2 << QRect(510, 116, 180, 56) << QRect(510, 248, 180, 56);
    QTest::newRow("top full width") << 3 << QRect(136, 116, 928, 56) << QRect(136, 248, 928, 56);
    QTest::newRow("bottom right") << 4 << QRect(784, 648, 180, 56) << QRect(784, 476, 180, 56);
    QTest::newRow("bottom left") << 5 << QRect(136, 648, 180, 56) << QRect(136, 476, 180, 56);
    QTest::newRow("bottom centre") << 6 << QRect(510, 648, 180, 56) << QRect(510, 476, 180, 56);
    QTest::newRow("bottom full width") << 7 << QRect(136, 648, 928, 56) << QRect(136, 476, 928, 56);
}

void TestWySimpleToastStacking::theColumnsStandWhereTheyAreStated()
{
    QFETCH(int, value);
    QFETCH(QRect, newest);
    QFETCH(QRect, shifted);
    Column column(QRect(100, 50, 1000, 700));
    WySimpleToast* toast = column.make();
    toast->setOrientation(orientation(value));
    toast->show();
    QCOMPARE(toast->geometry(), newest);
    toast->shiftOrientation(2);
    QCOMPARE(toast->geometry(), shifted);
}

void TestWySimpleToastStacking::theRightColumnIgnoresTheLeftEdgeOfItsArea()
{
    for (const int left : {0, 400, -700}) {
        Column column(QRect(left, 50, 1000, 700));
        WySimpleToast* toast = column.make();
        toast->setOrientation(WySimpleToast::TOASTR_TOP_RIGHT);
        toast->show();
        QCOMPARE(toast->x(), 1000 - 180 - 36);
    }
}

void TestWySimpleToastStacking::theTwoBottomSlotsDiffer()
{
    // By 10 px on an area that begins at the top, and by the area's top edge more on others.
    for (const int top : {0, 120}) {
        Column column(QRect(0, top, 1000, 700));
        WySimpleToast* toast = column.make();
        toast->setOrientation(WySimpleToast::TOASTR_BOTTOM_LEFT);
        toast->show();
        const int newest = toast->y();
        toast->shiftOrientation(0);
        QCOMPARE(toast->y(), newest + 10 - top);
    }
}

void TestWySimpleToastStacking::centringTruncatesTwice()
{
    // 501 / 2 - 179 / 2 is 161, (501 - 179) / 2 would be 161, too; 500 and 179 tell them apart.
    for (const int width : {500, 501}) {
        Column column(QRect(7, 0, width, 700));
        WySimpleToast* toast = column.make();
        toast->setFixedWidth(179);
        toast->setOrientation(WySimpleToast::TOASTR_TOP_CENTER);
        toast->show();
        QCOMPARE(toast->x(), 7 + 250 - 89);
    }
}

void TestWySimpleToastStacking::aFullWidthToastHasTwoWidths()
{
    Column column(QRect(100, 50, 1000, 700));
    WySimpleToast* toast = column.make();
    toast->setOrientation(WySimpleToast::TOASTR_TOP_FULL_WIDTH);
    toast->show();
    QCOMPARE(toast->maximumWidth(), 1000 - 36);
    QCOMPARE(toast->width(), 1000 - 72);
}

void TestWySimpleToastStacking::aNarrowAreaStaysQuiet()
{
    for (const int width : {1, 35, 36, 37, 100}) {
        Column column(QRect(100, 50, width, 10));
        for (int value = 0; value < 8; ++value) {
            WySimpleToast* toast = column.make();
            toast->setOrientation(orientation(value));
            toast->show();
            QCOMPARE(toast->size(), QSize(180, 56));
            delete toast;
        }
    }
}

void TestWySimpleToastStacking::anUnknownOrientationMovesNothing()
{
    Column column;
    for (const int value : {8, 9, 4711, -1}) {
        WySimpleToast* toast = column.make();
        toast->setOrientation(orientation(value));
        toast->setGeometry(11, 22, 180, 56);
        toast->show();
        QCOMPARE(toast->geometry(), QRect(11, 22, 180, 56));
        toast->shiftOrientation(3);
        QCOMPARE(toast->geometry(), QRect(11, 22, 180, 56));
        QCOMPARE(toast->maximumWidth(), 180);
        delete toast;
    }
}

void TestWySimpleToastStacking::withoutAParentTheDesktopIsTheArea()
{
    const QRect desktop = QGuiApplication::primaryScreen()->virtualGeometry();
    WySimpleToast toast;
    toast.setOrientation(WySimpleToast::TOASTR_BOTTOM_RIGHT);
    toast.show();
    QCOMPARE(toast.geometry(), QRect(desktop.width() - 180 - 36, desktop.bottom() - 35 - 66, 180, 56));
}

void TestWySimpleToastStacking::theAreaIsTakenAnewAtEveryPlacing()
{
    Column column(QRect(100, 50, 1000, 700));
    WySimpleToast* toast = column.show();
    QCOMPARE(toast->pos(), QPoint(136, 116));
    column.window().setGeometry(300, 80, 900, 600);
    QCOMPARE(toast->pos(), QPoint(136, 116));
    toast->shiftOrientation(0);
    QCOMPARE(toast->pos(), QPoint(336, 146));
}

void TestWySimpleToastStacking::aNewOrientationWaitsForTheNextPlacing()
{
    Column column(QRect(100, 50, 1000, 700));
    WySimpleToast* toast = column.show();
    toast->setOrientation(WySimpleToast::TOASTR_TOP_CENTER);
    QCOMPARE(toast->pos(), QPoint(136, 116));
    toast->shiftOrientation(0);
    QCOMPARE(toast->pos(), QPoint(510, 116));
    toast->setOrientation(WySimpleToast::TOASTR_TOP_LEFT);
    QCOMPARE(toast->pos(), QPoint(510, 116));
    toast->show();
    QCOMPARE(toast->pos(), QPoint(136, 116));
}

void TestWySimpleToastStacking::farAwaySlotsAreFarAway()
{
    Column column;
    WySimpleToast* toast = column.make();
    for (int value = 0; value < 8; ++value) {
        const int downwards = value < 4 ? 1 : -1;
        toast->setOrientation(orientation(value));
        toast->shiftOrientation(INT_MAX);
        QCOMPARE(toast->y(), downwards * QWIDGETSIZE_MAX);
        toast->shiftOrientation(INT_MIN);
        QCOMPARE(toast->y(), -downwards * QWIDGETSIZE_MAX);
    }
}

void TestWySimpleToastStacking::allPlacesAgreeWithTheModel()
{
    QRandomGenerator random(31415);
    Column shown;
    NestedParent parent;
    for (int count = 0; count < 5; ++count) {
        for (int round = 0; round < 1000; ++round) {
            const Area area = parent.randomize(random);
            const QSize size(random.bounded(1, 400), random.bounded(1, 120));
            const int value = random.bounded(8);
            const int index = random.bounded(-2, 30);
            WySimpleToast toast(parent.child());
            toast.setOrientation(orientation(value));
            for (const bool shift : {false, true}) {
                toast.setFixedSize(size);
                const Span span = modelSpan(value, area, size.width());
                int width = span.right - span.left + 1;
                if (value % 4 == 3)
                    width = qMax(size.width(), width); // the plate does not shrink
                const QRect expected(span.left,
                                     shift ? modelShiftedTop(value, area, size.height(), index)
                                           : modelNewestTop(value, area, size.height(), count),
                                     width, size.height());
                if (shift)
                    toast.shiftOrientation(index);
                else
                    toast.stateOrientation();
                QCOMPARE(toast.geometry(), expected);
                if (value % 4 == 3)
                    QCOMPARE(toast.maximumWidth(), qMax(0, area.width() - 36));
            }
        }
        shown.show();
    }
}

QTEST_MAIN(TestWySimpleToastStacking)
#include "tst_wysimpletoast_stacking.moc"

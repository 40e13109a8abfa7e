#include "WyWidgets/layout/WyFlowLayout.h"

#include "support/Contract.h"

#include <QHBoxLayout>
#include <QProxyStyle>
#include <QPushButton>
#include <QRandomGenerator>
#include <QtTest>

#include <functional>
#include <limits>
#include <utility>

using WyWidgets::WyFlowLayout;

namespace {

/// An item with sizes of the test's choice that remembers where it was put.
class Item : public QLayoutItem
{
public:
    explicit Item(QSize hint, QSize minimum = QSize(1, 1), int* alive = nullptr)
        : m_hint(hint), m_minimum(minimum), m_alive(alive)
    {
        if (m_alive)
            ++*m_alive;
    }
    ~Item() override
    {
        if (m_alive)
            --*m_alive;
    }
    QSize sizeHint() const override
    {
        ++hintCalls;
        if (onAsked)
            std::exchange(onAsked, nullptr)();
        return m_hint;
    }
    QSize minimumSize() const override
    {
        if (onAsked)
            std::exchange(onAsked, nullptr)();
        return m_minimum;
    }
    QSize maximumSize() const override { return QSize(10000, 10000); }
    Qt::Orientations expandingDirections() const override { return {}; }
    void setGeometry(const QRect& rect) override { m_rect = rect; }
    QRect geometry() const override { return m_rect; }
    bool isEmpty() const override { return false; }

    void setHint(QSize hint) { m_hint = hint; }

    mutable int hintCalls = 0;
    /// Runs once, when the item is asked for a size.
    mutable std::function<void()> onAsked;

private:
    QSize m_hint;
    QSize m_minimum;
    QRect m_rect;
    int* m_alive;
};

/// A style whose spacings the test chooses.
class SpacingStyle : public QProxyStyle
{
public:
    SpacingStyle(int pixelMetricH, int pixelMetricV, int layoutH, int layoutV)
        : m_metricH(pixelMetricH), m_metricV(pixelMetricV), m_layoutH(layoutH), m_layoutV(layoutV)
    {
    }
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
    {
        if (metric == PM_LayoutHorizontalSpacing || metric == PM_LayoutVerticalSpacing) {
            askedWithOption = option;
            askedForWidget = widget;
        }
        if (metric == PM_LayoutHorizontalSpacing)
            return m_metricH;
        if (metric == PM_LayoutVerticalSpacing)
            return m_metricV;
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
    int layoutSpacing(QSizePolicy::ControlType first, QSizePolicy::ControlType second,
                      Qt::Orientation orientation, const QStyleOption*, const QWidget*) const override
    {
        ++questions;
        if (first != QSizePolicy::PushButton || second != QSizePolicy::PushButton)
            return 999;
        return orientation == Qt::Horizontal ? m_layoutH : m_layoutV;
    }

    /// How often a gap between widgets was asked for.
    mutable int questions = 0;
    /// What the last question for one of the spacings was about.
    mutable const QStyleOption* askedWithOption = nullptr;
    mutable const QWidget* askedForWidget = nullptr;

private:
    int m_metricH;
    int m_metricV;
    int m_layoutH;
    int m_layoutV;
};

QSizePolicy fixedPolicy()
{
    return QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QWidget* box(QWidget* parent, QSize size)
{
    auto* widget = new QWidget(parent);
    widget->setSizePolicy(fixedPolicy());
    widget->setFixedSize(size);
    return widget;
}

/// A flow layout that stores no spacing, in a parent whose style answers with the given one, with boxes of
/// 10 x 10 px. The styles of the boxes have to last longer.
class StyledBoxes
{
public:
    StyledBoxes(int parentH, int parentV)
        : m_style(parentH, parentV, 0, 0), m_layout(new WyFlowLayout(&m_parent, 0, -1, -1))
    {
        m_parent.setStyle(&m_style);
    }
    WyFlowLayout* layout() { return m_layout; }
    QWidget* add(SpacingStyle& style)
    {
        QWidget* widget = box(&m_parent, QSize(10, 10));
        widget->setStyle(&style);
        m_layout->addWidget(widget);
        return widget;
    }

private:
    SpacingStyle m_style;
    QWidget m_parent;
    WyFlowLayout* m_layout;
};

/// The rule of placement told plainly, as a second opinion.
struct Placement
{
    QVector<QRect> rects;
    int height = 0;
};

Placement placePlainly(const QVector<QSize>& sizes, const QRect& area, const QMargins& margins, int spaceX,
                       int spaceY)
{
    Placement result;
    const int x0 = area.x() + margins.left();
    int x = x0;
    int y = area.y() + margins.top();
    const int rightEdge = area.x() + area.width() - 1 - margins.right();
    int line = 0;
    for (const QSize& size : sizes) {
        if (x + size.width() > rightEdge && line > 0) {
            x = x0;
            y = y + line + spaceY;
            line = 0;
        }
        result.rects += QRect(x, y, size.width(), size.height());
        x = x + size.width() + spaceX;
        line = std::max(line, size.height());
    }
    result.height = y + line - area.y() + margins.bottom();
    return result;
}

} // namespace

class TestWyFlowLayout : public QObject
{
    Q_OBJECT

private slots:
    void registersNothing();
    void defaultsLeaveMarginAndSpacingToTheStyle();
    void theMarginIsSetOnAllFourSides();
    void itemsOutOfRangeAreNull();
    void takeAtRemovesAndInvalidates();
    void addItemIgnoresNullAndInvalidates();
    void theDestructorDeletesEveryItem();
    void theDestructorTakesEachItemOutFirst();
    void claimsExtraWidthOnly();
    void hasHeightForWidth();
    void storedSpacingWins();
    void negativeSpacingWithoutParentIsMinusOne();
    void negativeSpacingComesFromTheParentsStyle();
    void negativeSpacingComesFromAParentLayout();
    void smartSpacingIsWhatTheParentSays();
    void minusOneIsJudgedPerAxis();
    void aRowsGapMayBeTheWidgetsAlone();
    void anOwnerThatLaysNothingOutHasNoSpacing();
    void aWidgetsOwnStyleDecidesWhereTheParentsAnswersMinusOne();
    void everyRunOfWidgetsWithOneStyleAsksItOnce();
    void anItemWithoutAWidgetHasNoGapWhereNothingIsStored();
    void anExactFitWraps();
    void oneMorePixelFits();
    void aTooWideItemStandsAloneAndOverflows();
    void wrappingDependsOnTheRowsHeight();
    void hiddenWidgetsAreNotSkipped();
    void anEmptyLayoutsHeightIsItsMargins();
    void anEmptyLayoutsMinimumIsItsMarginsLessOne();
    void theMinimumIsTheLargestOfEachAxis();
    void theSizeHintIsTheMinimum();
    void rightToLeftIsNotMirrored();
    void generatedLayoutsAgreeWithThePlainRule();
    void generatedWidgetsWithMixedStylesAgreeWithThePlainRule();
    void itemsAreMeasuredOnceUntilSomethingChanges();
    void theKeptHeightFollowsTheItems();
    void theKeptHeightFollowsTheStyle();
    void theKeptHeightFollowsTheParentLayoutsSpacing();
    void theKeptHeightFollowsTheSpacingOfOneAxis();
    void anItemMayAskForTheHeightWhileItIsMeasured();
    void nestedLayoutsAreMeasuredAnew();
    void aLayoutThatIsPartOfAnotherIsNotTaken();
    void measuringMayChangeTheItems_data();
    void measuringMayChangeTheItems();
    void measuringMayChangeWhatWasMeasured();
    void hugeSizesStopAtTheLargestNumber();
    void everyWidthWithoutRoomIsTheSame();
    void aResizeHandlerMayDeleteASibling_data();
    void aResizeHandlerMayDeleteASibling();
    void aResizeHandlerMayAddItems();
    void aResizeHandlerMayDeleteTheLayout();
    void growsTheWindowWithItsRows();
};

void TestWyFlowLayout::registersNothing()
{
    WY_COMPARE_CONTRACT(WyFlowLayout, {}, {}, {});
}

void TestWyFlowLayout::defaultsLeaveMarginAndSpacingToTheStyle()
{
    SpacingStyle style(7, 8, 1, 1);
    QWidget parent;
    parent.setStyle(&style);
    auto* layout = new WyFlowLayout(&parent);
    QCOMPARE(parent.layout(), layout);
    QCOMPARE(layout->contentsMargins().left(),
             style.pixelMetric(QStyle::PM_LayoutLeftMargin, nullptr, &parent));
    QCOMPARE(layout->contentsMargins().bottom(),
             style.pixelMetric(QStyle::PM_LayoutBottomMargin, nullptr, &parent));
    QCOMPARE(layout->horizontalSpacing(), 7);
    QCOMPARE(layout->verticalSpacing(), 8);
    WyFlowLayout loose;
    QVERIFY(!loose.parent());
    QCOMPARE(loose.horizontalSpacing(), -1);
}

void TestWyFlowLayout::theMarginIsSetOnAllFourSides()
{
    QWidget parent;
    QCOMPARE(WyFlowLayout(&parent, 5).contentsMargins(), QMargins(5, 5, 5, 5));
    QCOMPARE(WyFlowLayout(6).contentsMargins(), QMargins(6, 6, 6, 6));
    QCOMPARE(WyFlowLayout(0).contentsMargins(), QMargins(0, 0, 0, 0));
}

void TestWyFlowLayout::itemsOutOfRangeAreNull()
{
    WyFlowLayout layout;
    auto* item = new Item(QSize(10, 10));
    layout.addItem(item);
    QCOMPARE(layout.count(), 1);
    QCOMPARE(layout.itemAt(0), item);
    QVERIFY(!layout.itemAt(-1));
    QVERIFY(!layout.itemAt(1));
    QVERIFY(!layout.takeAt(-1));
    QVERIFY(!layout.takeAt(1));
    QCOMPARE(layout.count(), 1);
}

void TestWyFlowLayout::takeAtRemovesAndInvalidates()
{
    WyFlowLayout layout(0, 0, 0);
    auto* first = new Item(QSize(10, 10));
    layout.addItem(first);
    layout.addItem(new Item(QSize(10, 30)));
    QCOMPARE(layout.heightForWidth(100), 30);
    QScopedPointer<QLayoutItem> taken(layout.takeAt(1));
    QCOMPARE(layout.count(), 1);
    QCOMPARE(layout.itemAt(0), first);
    QCOMPARE(layout.heightForWidth(100), 10);
}

void TestWyFlowLayout::addItemIgnoresNullAndInvalidates()
{
    QWidget parent;
    auto* layout = new WyFlowLayout(&parent, 0, 0, 0);
    layout->addItem(nullptr);
    QCOMPARE(layout->count(), 0);
    QCOMPARE(layout->heightForWidth(100), 0);
    layout->addItem(new Item(QSize(10, 10)));
    QCOMPARE(layout->heightForWidth(100), 10);
}

void TestWyFlowLayout::theDestructorDeletesEveryItem()
{
    int alive = 0;
    {
        WyFlowLayout layout;
        for (int i = 0; i < 5; ++i)
            layout.addItem(new Item(QSize(1, 1), QSize(1, 1), &alive));
        QCOMPARE(alive, 5);
    }
    QCOMPARE(alive, 0);
}

void TestWyFlowLayout::theDestructorTakesEachItemOutFirst()
{
    struct NosyItem : Item
    {
        explicit NosyItem(WyFlowLayout* layout, QVector<int>* counts)
            : Item(QSize(1, 1)), m_layout(layout), m_counts(counts)
        {
        }
        ~NosyItem() override { *m_counts += m_layout->count(); }
        WyFlowLayout* m_layout;
        QVector<int>* m_counts;
    };
    QVector<int> counts;
    auto* layout = new WyFlowLayout;
    for (int i = 0; i < 3; ++i)
        layout->addItem(new NosyItem(layout, &counts));
    delete layout;
    QCOMPARE(counts, QVector<int>({2, 1, 0}));
}

void TestWyFlowLayout::claimsExtraWidthOnly()
{
    QCOMPARE(WyFlowLayout().expandingDirections(), Qt::Orientations(Qt::Horizontal));
}

void TestWyFlowLayout::hasHeightForWidth()
{
    QVERIFY(WyFlowLayout().hasHeightForWidth());
}

void TestWyFlowLayout::storedSpacingWins()
{
    SpacingStyle style(7, 8, 1, 1);
    QWidget parent;
    parent.setStyle(&style);
    auto* layout = new WyFlowLayout(&parent, 0, 0, 3);
    QCOMPARE(layout->horizontalSpacing(), 0);
    QCOMPARE(layout->verticalSpacing(), 3);
    QWidget other;
    other.setStyle(&style);
    QCOMPARE(WyFlowLayout(&other, 0, 3, 0).verticalSpacing(), 0);
}

void TestWyFlowLayout::negativeSpacingWithoutParentIsMinusOne()
{
    WyFlowLayout layout(0, -5, -1);
    QCOMPARE(layout.horizontalSpacing(), -1);
    QCOMPARE(layout.verticalSpacing(), -1);
}

void TestWyFlowLayout::negativeSpacingComesFromTheParentsStyle()
{
    SpacingStyle style(11, 12, 1, 1);
    QWidget parent;
    parent.setStyle(&style);
    auto* layout = new WyFlowLayout(&parent, 0, -3, -9);
    QCOMPARE(layout->horizontalSpacing(), 11);
    QCOMPARE(layout->verticalSpacing(), 12);
}

void TestWyFlowLayout::negativeSpacingComesFromAParentLayout()
{
    QWidget window;
    auto* outer = new QHBoxLayout(&window);
    outer->setSpacing(17);
    auto* layout = new WyFlowLayout(0, -1, -1);
    outer->addLayout(layout);
    QCOMPARE(layout->horizontalSpacing(), 17);
    QCOMPARE(layout->verticalSpacing(), 17);
}

void TestWyFlowLayout::smartSpacingIsWhatTheParentSays()
{
    SpacingStyle style(11, 12, 1, 1);
    QWidget parent;
    parent.setStyle(&style);
    auto* layout = new WyFlowLayout(&parent, 0, 3, 3);
    QCOMPARE(layout->smartSpacing(QStyle::PM_LayoutHorizontalSpacing), 11);
    QCOMPARE(layout->smartSpacing(QStyle::PM_LayoutVerticalSpacing), 12);
    QVERIFY(!style.askedWithOption);
    QCOMPARE(style.askedForWidget, &parent);
    QCOMPARE(layout->smartSpacing(QStyle::PM_ButtonMargin),
             style.pixelMetric(QStyle::PM_ButtonMargin, nullptr, &parent));

    QWidget window;
    auto* outer = new QHBoxLayout(&window);
    outer->setSpacing(17);
    auto* inner = new WyFlowLayout(0, 3, 3);
    outer->addLayout(inner);
    QCOMPARE(inner->smartSpacing(QStyle::PM_LayoutVerticalSpacing), 17);
    QCOMPARE(inner->smartSpacing(QStyle::PM_ButtonMargin), 17);
    QCOMPARE(WyFlowLayout().smartSpacing(QStyle::PM_LayoutVerticalSpacing), -1);
}

void TestWyFlowLayout::aRowsGapMayBeTheWidgetsAlone()
{
    SpacingStyle widgetStyle(0, 0, 90, 20);
    StyledBoxes boxes(4, -1);
    boxes.add(widgetStyle);
    const QWidget* second = boxes.add(widgetStyle);
    boxes.layout()->setGeometry(QRect(0, 0, 15, 100));
    QCOMPARE(second->pos(), QPoint(0, 30));
}

void TestWyFlowLayout::anOwnerThatLaysNothingOutHasNoSpacing()
{
    QObject owner;
    auto* layout = new WyFlowLayout(0, -1, -1);
    layout->setParent(&owner);
    QCOMPARE(layout->horizontalSpacing(), -1);
    QCOMPARE(layout->verticalSpacing(), -1);
}

void TestWyFlowLayout::minusOneIsJudgedPerAxis()
{
    SpacingStyle widgetStyle(0, 0, 20, 90);
    StyledBoxes boxes(-1, 4);
    boxes.add(widgetStyle);
    const QWidget* second = boxes.add(widgetStyle);
    const QWidget* third = boxes.add(widgetStyle);
    boxes.layout()->setGeometry(QRect(0, 0, 50, 100));
    QCOMPARE(second->pos(), QPoint(30, 0));
    QCOMPARE(third->pos(), QPoint(0, 14));
}

void TestWyFlowLayout::aWidgetsOwnStyleDecidesWhereTheParentsAnswersMinusOne()
{
    SpacingStyle wide(0, 0, 20, 5);
    SpacingStyle narrow(0, 0, 2, 9);
    StyledBoxes boxes(-1, -1);
    boxes.add(wide);
    const QWidget* second = boxes.add(wide);
    const QWidget* third = boxes.add(narrow);
    const QWidget* fourth = boxes.add(narrow);
    boxes.layout()->setGeometry(QRect(0, 0, 72, 100));
    // The gap to the right belongs to the item just placed, the gap between rows to the one that starts the
    // row.
    QCOMPARE(second->pos(), QPoint(30, 0));
    QCOMPARE(third->pos(), QPoint(60, 0));
    QCOMPARE(fourth->pos(), QPoint(0, 19));
}

void TestWyFlowLayout::everyRunOfWidgetsWithOneStyleAsksItOnce()
{
    SpacingStyle wide(0, 0, 20, 5);
    SpacingStyle narrow(0, 0, 2, 9);
    StyledBoxes boxes(-1, -1);
    for (SpacingStyle* style : {&wide, &wide, &wide, &narrow, &narrow, &wide})
        boxes.add(*style);
    boxes.layout()->heightForWidth(50);
    QCOMPARE(wide.questions, 2 * 2); // two runs, two directions
    QCOMPARE(narrow.questions, 1 * 2);
}

void TestWyFlowLayout::anItemWithoutAWidgetHasNoGapWhereNothingIsStored()
{
    WyFlowLayout layout(0, -1, -1);
    QVector<Item*> items;
    for (int i = 0; i < 3; ++i) {
        items += new Item(QSize(10, 10));
        layout.addItem(items[i]);
    }
    layout.setGeometry(QRect(0, 0, 25, 100));
    QCOMPARE(items[1]->geometry().topLeft(), QPoint(10, 0));
    QCOMPARE(items[2]->geometry().topLeft(), QPoint(0, 10));
}

void TestWyFlowLayout::anExactFitWraps()
{
    // The right edge is the last pixel inside, so two items of 50 do not fit in 100.
    WyFlowLayout layout(0, 0, 0);
    layout.addItem(new Item(QSize(50, 10)));
    auto* second = new Item(QSize(50, 10));
    layout.addItem(second);
    layout.setGeometry(QRect(0, 0, 100, 100));
    QCOMPARE(second->geometry(), QRect(0, 10, 50, 10));
    QCOMPARE(layout.geometry(), QRect(0, 0, 100, 100));
}

void TestWyFlowLayout::oneMorePixelFits()
{
    WyFlowLayout layout(0, 0, 0);
    layout.addItem(new Item(QSize(50, 10)));
    auto* second = new Item(QSize(50, 10));
    layout.addItem(second);
    layout.setGeometry(QRect(0, 0, 101, 100));
    QCOMPARE(second->geometry(), QRect(50, 0, 50, 10));
}

void TestWyFlowLayout::aTooWideItemStandsAloneAndOverflows()
{
    WyFlowLayout layout(3, 0, 0);
    auto* wide = new Item(QSize(500, 10));
    auto* next = new Item(QSize(10, 10));
    layout.addItem(wide);
    layout.addItem(next);
    layout.setGeometry(QRect(0, 0, 100, 100));
    QCOMPARE(wide->geometry(), QRect(3, 3, 500, 10));
    QCOMPARE(next->geometry(), QRect(3, 13, 10, 10));
}

void TestWyFlowLayout::wrappingDependsOnTheRowsHeight()
{
    WyFlowLayout layout(0, 5, 7);
    auto* flat = new Item(QSize(90, 0));
    auto* next = new Item(QSize(90, 20));
    layout.addItem(flat);
    layout.addItem(next);
    layout.setGeometry(QRect(0, 0, 100, 100));
    QCOMPARE(next->geometry().topLeft(), QPoint(95, 0));
}

void TestWyFlowLayout::hiddenWidgetsAreNotSkipped()
{
    QWidget parent;
    auto* layout = new WyFlowLayout(&parent, 0, 5, 5);
    QWidget* first = box(&parent, QSize(10, 10));
    QWidget* hidden = box(&parent, QSize(10, 10));
    QWidget* last = box(&parent, QSize(10, 10));
    for (QWidget* widget : {first, hidden, last})
        layout->addWidget(widget);
    hidden->hide();
    layout->setGeometry(QRect(0, 0, 100, 100));
    QCOMPARE(last->pos(), QPoint(20, 0));
}

void TestWyFlowLayout::anEmptyLayoutsHeightIsItsMargins()
{
    WyFlowLayout layout(4, 1, 1);
    QCOMPARE(layout.heightForWidth(100), 8);
    layout.setContentsMargins(1, 2, 3, 40);
    QCOMPARE(layout.heightForWidth(100), 42);
}

void TestWyFlowLayout::anEmptyLayoutsMinimumIsItsMarginsLessOne()
{
    WyFlowLayout layout(4, 1, 1);
    QCOMPARE(layout.minimumSize(), QSize(7, 7));
    layout.setContentsMargins(1, 2, 3, 40);
    QCOMPARE(layout.minimumSize(), QSize(3, 41));
}

void TestWyFlowLayout::theMinimumIsTheLargestOfEachAxis()
{
    WyFlowLayout layout(2, 1, 1);
    layout.addItem(new Item(QSize(90, 90), QSize(30, 5)));
    layout.addItem(new Item(QSize(90, 90), QSize(4, 50)));
    QCOMPARE(layout.minimumSize(), QSize(34, 54));
}

void TestWyFlowLayout::theSizeHintIsTheMinimum()
{
    WyFlowLayout layout(2, 1, 1);
    layout.addItem(new Item(QSize(90, 90), QSize(30, 5)));
    QCOMPARE(layout.sizeHint(), QSize(34, 9));
}

void TestWyFlowLayout::rightToLeftIsNotMirrored()
{
    QWidget parent;
    parent.setLayoutDirection(Qt::RightToLeft);
    auto* layout = new WyFlowLayout(&parent, 0, 0, 0);
    QWidget* first = box(&parent, QSize(10, 10));
    layout->addWidget(first);
    layout->setGeometry(QRect(0, 0, 100, 100));
    QCOMPARE(first->pos(), QPoint(0, 0));
}

void TestWyFlowLayout::generatedLayoutsAgreeWithThePlainRule()
{
    QRandomGenerator random(20);
    for (int round = 0; round < 5000; ++round) {
        const int spaceX = random.bounded(0, 15);
        const int spaceY = random.bounded(0, 15);
        WyFlowLayout layout(0, spaceX, spaceY);
        const QMargins margins(random.bounded(20), random.bounded(20), random.bounded(20),
                               random.bounded(20));
        layout.setContentsMargins(margins.left(), margins.top(), margins.right(), margins.bottom());
        QVector<QSize> sizes;
        QVector<Item*> items;
        const int count = random.bounded(40);
        for (int i = 0; i < count; ++i) {
            // Zero and negative sizes happen with spacers and custom items.
            sizes += QSize(random.bounded(-3, 120), random.bounded(-2, 40));
            items += new Item(sizes.last());
            layout.addItem(items.last());
        }
        const QRect area(random.bounded(-50, 50), random.bounded(-50, 50), random.bounded(0, 400),
                         random.bounded(0, 400));
        const Placement expected = placePlainly(sizes, area, margins, spaceX, spaceY);
        layout.setGeometry(area);
        for (int i = 0; i < count; ++i)
            QCOMPARE(items[i]->geometry(), expected.rects[i]);
        const int width = random.bounded(-10, 500);
        QCOMPARE(layout.heightForWidth(width),
                 placePlainly(sizes, QRect(0, 0, width, 0), margins, spaceX, spaceY).height);
    }
}

void TestWyFlowLayout::generatedWidgetsWithMixedStylesAgreeWithThePlainRule()
{
    QRandomGenerator random(21);
    SpacingStyle parentStyle(-1, -1, 0, 0);
    SpacingStyle styles[3] = {{0, 0, 3, 11}, {0, 0, 17, 2}, {0, 0, 0, 0}};
    const int gapX[3] = {3, 17, 0};
    const int gapY[3] = {11, 2, 0};
    for (int round = 0; round < 300; ++round) {
        QWidget parent;
        parent.setStyle(&parentStyle);
        auto* layout = new WyFlowLayout(&parent, 0, -1, -1);
        QVector<QWidget*> boxes;
        QVector<int> kinds;
        const int count = random.bounded(20);
        for (int i = 0; i < count; ++i) {
            boxes += box(&parent, QSize(random.bounded(1, 80), random.bounded(1, 40)));
            kinds += random.bounded(3);
            boxes[i]->setStyle(&styles[kinds[i]]);
            layout->addWidget(boxes[i]);
        }
        const int width = random.bounded(1, 300);
        layout->setGeometry(QRect(0, 0, width, 10));
        int x = 0;
        int y = 0;
        int line = 0;
        for (int i = 0; i < count; ++i) {
            if (x + boxes[i]->width() > width - 1 && line > 0) {
                x = 0;
                y += line + gapY[kinds[i]];
                line = 0;
            }
            QCOMPARE(boxes[i]->pos(), QPoint(x, y));
            x += boxes[i]->width() + gapX[kinds[i]];
            line = std::max(line, boxes[i]->height());
        }
    }
}

void TestWyFlowLayout::itemsAreMeasuredOnceUntilSomethingChanges()
{
    WyFlowLayout layout(0, 2, 2);
    auto* item = new Item(QSize(30, 10));
    layout.addItem(item);
    const int height = layout.heightForWidth(200);
    const int calls = item->hintCalls;
    for (int i = 0; i < 100; ++i)
        QCOMPARE(layout.heightForWidth(200), height);
    QCOMPARE(item->hintCalls, calls);
    layout.heightForWidth(201);
    layout.setGeometry(QRect(0, 0, 50, 50));
    QCOMPARE(item->hintCalls, calls);
    layout.invalidate();
    layout.heightForWidth(200);
    QCOMPARE(item->hintCalls, calls + 1);
}

void TestWyFlowLayout::theKeptHeightFollowsTheItems()
{
    QWidget parent;
    auto* layout = new WyFlowLayout(&parent, 0, 0, 0);
    auto* button = new QPushButton(QStringLiteral("one"));
    button->setFixedHeight(20);
    layout->addWidget(button);
    QCOMPARE(layout->heightForWidth(300), 20);
    button->setFixedHeight(45);
    QCOMPARE(layout->heightForWidth(300), 45);
    button->hide();
    QCOMPARE(layout->heightForWidth(300), 0);
    delete button;
    QCOMPARE(layout->heightForWidth(300), 0);
    QCOMPARE(layout->count(), 0);
}

void TestWyFlowLayout::theKeptHeightFollowsTheStyle()
{
    SpacingStyle near(0, 1, 0, 0);
    SpacingStyle far(0, 40, 0, 0);
    QWidget parent;
    parent.setStyle(&near);
    auto* layout = new WyFlowLayout(&parent, 0, -1, -1);
    layout->addItem(new Item(QSize(60, 10)));
    layout->addItem(new Item(QSize(60, 10)));
    QCOMPARE(layout->heightForWidth(100), 21);
    parent.setStyle(&far);
    QCOMPARE(layout->heightForWidth(100), 60);
}

void TestWyFlowLayout::theKeptHeightFollowsTheParentLayoutsSpacing()
{
    QWidget window;
    auto* outer = new QHBoxLayout(&window);
    outer->setSpacing(1);
    auto* layout = new WyFlowLayout(0, -1, -1);
    outer->addLayout(layout);
    layout->addItem(new Item(QSize(60, 10)));
    layout->addItem(new Item(QSize(60, 10)));
    QCOMPARE(layout->heightForWidth(100), 21);
    outer->setSpacing(30);
    QCOMPARE(layout->heightForWidth(100), 50);
}

void TestWyFlowLayout::theKeptHeightFollowsTheSpacingOfOneAxis()
{
    QWidget window;
    auto* outer = new QHBoxLayout(&window);
    outer->setSpacing(1);
    auto* layout = new WyFlowLayout(0, 5, -1);
    outer->addLayout(layout);
    layout->addItem(new Item(QSize(60, 10)));
    layout->addItem(new Item(QSize(60, 10)));
    QCOMPARE(layout->heightForWidth(100), 21);
    outer->setSpacing(30);
    QCOMPARE(layout->heightForWidth(100), 50);
}

void TestWyFlowLayout::anItemMayAskForTheHeightWhileItIsMeasured()
{
    QWidget window;
    auto* outer = new QHBoxLayout(&window);
    outer->setSpacing(1);
    auto* layout = new WyFlowLayout(0, -1, -1);
    outer->addLayout(layout);
    auto* nosy = new Item(QSize(60, 10));
    layout->addItem(nosy);
    layout->addItem(new Item(QSize(60, 10)));
    QCOMPARE(layout->heightForWidth(100), 21);
    outer->setSpacing(30);
    int heightMeanwhile = 0;
    nosy->onAsked = [&] {
        heightMeanwhile = layout->heightForWidth(100);
    };
    QCOMPARE(layout->heightForWidth(100), 50);
    QCOMPARE(heightMeanwhile, 50);
}

void TestWyFlowLayout::nestedLayoutsAreMeasuredAnew()
{
    QWidget window;
    auto* layout = new WyFlowLayout(&window, 0, 0, 0);
    auto* inner = new QHBoxLayout;
    inner->setContentsMargins(0, 0, 0, 0);
    layout->addItem(inner);
    QCOMPARE(inner->parent(), layout);
    inner->addWidget(box(nullptr, QSize(10, 10)));
    QCOMPARE(inner->itemAt(0)->widget()->parentWidget(), &window);
    QCOMPARE(layout->heightForWidth(300), 10);
    inner->addWidget(box(nullptr, QSize(10, 70)));
    QCOMPARE(layout->heightForWidth(300), 70);
    QLayoutItem* taken = layout->takeAt(0);
    QCOMPARE(taken->layout(), inner);
    QVERIFY(!inner->parent());
    delete taken;
}

void TestWyFlowLayout::aLayoutThatIsPartOfAnotherIsNotTaken()
{
    QHBoxLayout outer;
    auto* inner = new QHBoxLayout;
    outer.addLayout(inner);
    WyFlowLayout layout;
    QTest::ignoreMessage(QtWarningMsg, "QLayout::addChildLayout: layout \"\" already has a parent");
    layout.addItem(inner);
    QCOMPARE(layout.count(), 0);
    QCOMPARE(inner->parent(), &outer);

    struct Adopting : WyFlowLayout
    {
        using QLayout::addChildLayout;
    };
    Adopting adopting;
    auto* adopted = new QHBoxLayout;
    adopting.addChildLayout(adopted);
    adopting.addItem(adopted);
    QCOMPARE(adopting.count(), 1);
}

void TestWyFlowLayout::measuringMayChangeTheItems_data()
{
    QTest::addColumn<int>("victim");
    QTest::newRow("the first one") << 0;
    QTest::newRow("the next one") << 3;
    QTest::newRow("the last one") << 4;
}

void TestWyFlowLayout::measuringMayChangeTheItems()
{
    QFETCH(int, victim);
    const std::function<void(WyFlowLayout*)> questions[] = {
        [](WyFlowLayout* layout) { layout->heightForWidth(300); },
        [](WyFlowLayout* layout) { layout->setGeometry(QRect(0, 0, 300, 100)); },
        [](WyFlowLayout* layout) { layout->minimumSize(); },
    };
    for (const auto& ask : questions) {
        WyFlowLayout layout(0, 0, 0);
        QVector<Item*> items;
        for (int i = 0; i < 5; ++i) {
            items += new Item(QSize(10 + i, 10));
            layout.addItem(items[i]);
        }
        items[2]->onAsked = [&] {
            delete layout.takeAt(victim);
            layout.addItem(new Item(QSize(30, 50)));
        };
        ask(&layout);
        QCOMPARE(layout.count(), 5);
        QCOMPARE(layout.heightForWidth(300), 50);
        layout.setGeometry(QRect(0, 0, 300, 100));
        int x = 0;
        for (int i = 0; i < 5; ++i) {
            QCOMPARE(layout.itemAt(i)->geometry().x(), x);
            x += layout.itemAt(i)->sizeHint().width();
        }
    }
}

void TestWyFlowLayout::measuringMayChangeWhatWasMeasured()
{
    WyFlowLayout layout(0, 0, 0);
    auto* first = new Item(QSize(10, 10));
    auto* second = new Item(QSize(10, 10));
    layout.addItem(first);
    layout.addItem(second);
    second->onAsked = [&] {
        first->setHint(QSize(40, 40));
        layout.invalidate();
    };
    layout.heightForWidth(300);
    QCOMPARE(layout.heightForWidth(300), 40);
    layout.setGeometry(QRect(0, 0, 300, 100));
    QCOMPARE(second->geometry(), QRect(40, 0, 10, 10));
}

void TestWyFlowLayout::hugeSizesStopAtTheLargestNumber()
{
    constexpr int huge = std::numeric_limits<int>::max();
    WyFlowLayout layout(5, huge, huge);
    QVector<Item*> items;
    for (int i = 0; i < 4; ++i) {
        items += new Item(QSize(huge, huge), QSize(huge, huge));
        layout.addItem(items[i]);
    }
    QCOMPARE(layout.heightForWidth(100), huge);
    QCOMPARE(layout.minimumSize(), QSize(huge, huge));
    layout.setGeometry(QRect(0, 0, 100, 100));
    QCOMPARE(items[0]->geometry(), QRect(QPoint(5, 5), QPoint(huge, huge)));
    QCOMPARE(items[3]->geometry(), QRect(QPoint(5, huge), QPoint(huge, huge)));
    // In a row of no height nothing wraps.
    for (Item* item : qAsConst(items))
        item->setHint(QSize(huge, 0));
    layout.invalidate();
    layout.setGeometry(QRect(0, 0, 100, 100));
    QCOMPARE(items[3]->geometry().topLeft(), QPoint(huge, 5));
}

void TestWyFlowLayout::everyWidthWithoutRoomIsTheSame()
{
    WyFlowLayout layout(5, 1, 2);
    for (int i = 0; i < 3; ++i)
        layout.addItem(new Item(QSize(10, 20), QSize(10, 20)));
    for (const int width : {1, 0, -1, -100000000, std::numeric_limits<int>::min()})
        QCOMPARE(layout.heightForWidth(width), 5 + 3 * 20 + 2 * 2 + 5);
}

namespace {

/// A widget that runs an action when its layout resizes it.
class Reacting : public QWidget
{
public:
    using QWidget::QWidget;
    QSize sizeHint() const override { return m_hint; }
    /// The layout resizes the widget to this at its next turn.
    void setHint(QSize hint)
    {
        m_hint = hint;
        updateGeometry();
    }
    std::function<void()> onResize;

protected:
    void resizeEvent(QResizeEvent*) override
    {
        const auto react = onResize; // which may set another one
        if (react)
            react();
    }

private:
    QSize m_hint = QSize(10, 10);
};

} // namespace

void TestWyFlowLayout::aResizeHandlerMayDeleteASibling_data()
{
    QTest::addColumn<int>("victim");
    QTest::newRow("an earlier one") << 0;
    QTest::newRow("itself, later") << 2;
    QTest::newRow("the next one") << 3;
    QTest::newRow("the last one") << 4;
}

void TestWyFlowLayout::aResizeHandlerMayDeleteASibling()
{
    QFETCH(int, victim);
    QWidget window;
    auto* layout = new WyFlowLayout(&window, 0, 0, 0);
    QVector<QPointer<Reacting>> widgets;
    for (int i = 0; i < 5; ++i) {
        auto* widget = new Reacting(&window);
        layout->addWidget(widget);
        widgets += widget;
    }
    window.resize(45, 100);
    window.show();
    widgets[2]->onResize = [&] {
        widgets[2]->onResize = nullptr;
        if (victim == 2)
            widgets[2]->deleteLater();
        else
            delete widgets[victim];
    };
    widgets[2]->setHint(QSize(12, 12));
    layout->activate();
    QTRY_COMPARE(layout->count(), 4);
    QVERIFY(!widgets[victim]);
    window.resize(301, 100);
    layout->activate();
    int x = 0;
    for (int i = 0; i < layout->count(); ++i) {
        QCOMPARE(layout->itemAt(i)->geometry().x(), x);
        x += layout->itemAt(i)->geometry().width();
    }
}

void TestWyFlowLayout::aResizeHandlerMayAddItems()
{
    QWidget window;
    auto* layout = new WyFlowLayout(&window, 0, 0, 0);
    auto* widget = new Reacting(&window);
    layout->addWidget(widget);
    window.show();
    auto* added = new Item(QSize(20, 20));
    widget->onResize = [&] {
        if (layout->count() == 1)
            layout->addItem(added);
    };
    widget->setHint(QSize(12, 12));
    layout->setGeometry(QRect(0, 0, 300, 100));
    QCOMPARE(layout->count(), 2);
    QCOMPARE(added->geometry(), QRect(12, 0, 20, 20));
}

void TestWyFlowLayout::aResizeHandlerMayDeleteTheLayout()
{
    QWidget window;
    QPointer<WyFlowLayout> layout = new WyFlowLayout(&window, 0, 0, 0);
    QVector<Reacting*> widgets;
    for (int i = 0; i < 3; ++i) {
        widgets += new Reacting(&window);
        layout->addWidget(widgets[i]);
    }
    window.show();
    widgets[1]->onResize = [&] {
        delete layout;
    };
    widgets[1]->setHint(QSize(30, 30));
    layout->setGeometry(QRect(0, 0, 200, 200));
    QVERIFY(!layout);
}

void TestWyFlowLayout::growsTheWindowWithItsRows()
{
    QWidget window;
    auto* outer = new QVBoxLayout(&window);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* tags = new QWidget;
    auto* layout = new WyFlowLayout(tags, 0, 4, 4);
    for (int i = 0; i < 20; ++i)
        layout->addWidget(box(tags, QSize(50, 20)));
    outer->addWidget(tags);
    outer->addStretch(1);
    window.resize(1100, 400);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_COMPARE(tags->height(), 20);
    window.resize(300, 400);
    QTRY_COMPARE(tags->height(), layout->heightForWidth(300));
    QCOMPARE(tags->height(), 4 * 20 + 3 * 4);
}

QTEST_MAIN(TestWyFlowLayout)
#include "tst_wyflowlayout.moc"

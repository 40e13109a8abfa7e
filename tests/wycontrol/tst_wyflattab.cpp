#include "WyWidgets/wycontrol/WyFlatTab.h"

#include "support/Contract.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QRandomGenerator>
#include <QtTest>

#include <functional>

using WyWidgets::WyFlatTab;
using Change = std::function<void(WyFlatTab&)>;
Q_DECLARE_METATYPE(Change)

namespace {

QPushButton* tab(const WyFlatTab& strip, int index)
{
    return strip.findChildren<QPushButton*>().value(index);
}

QLabel* underline(const WyFlatTab& strip)
{
    return strip.findChild<QLabel*>(QStringLiteral("label_tab"));
}

QPropertyAnimation* glide(const WyFlatTab& strip)
{
    return strip.findChild<QPropertyAnimation*>();
}

bool isGliding(const WyFlatTab& strip)
{
    return glide(strip)->state() == QAbstractAnimation::Running;
}

void finishGlide(const WyFlatTab& strip)
{
    glide(strip)->setCurrentTime(300);
}

/// Where a 20 x 3 underline belongs for this tab, worked out from the tab's edges.
QRect belowTab(const QWidget& tab)
{
    const qint64 left = tab.x();
    const qint64 right = left + tab.width() - 1;
    const qint64 centre = (left + right) / 2;
    return QRect(int(centre) - 10, tab.y() + tab.height() - 4, 20, 3);
}

void addTabs(WyFlatTab& strip, const QStringList& texts)
{
    for (const QString& text : texts)
        strip.AddTab(text);
}

/// A shown strip of three tabs, wide enough for changes, whose first tab is selected.
struct ShownStrip
{
    ShownStrip()
    {
        addTabs(strip, {"Files", "Branches", "Releases"});
        strip.SelectTab(0);
        strip.resize(700, 40);
        window.resize(1000, 100);
        window.show();
        QCoreApplication::processEvents();
    }
    QWidget window;
    WyFlatTab& strip = *new WyFlatTab(&window);
};

} // namespace

class TestWyFlatTab : public QObject
{
    Q_OBJECT

private slots:
    void registersItsSignalAndSlots();
    void startsWithoutTabsAndWithTheUnderlineAtTheOrigin();
    void lengthwiseLayoutIsCentred();
    void theUnderlineGlidesForThreeTenthsOfASecond();
    void addedTabsAreCheckableAndTakeNoFocus();
    void selectTabMovesTheUnderlineAtOnceAndSilently();
    void selectTabLeavesButtonsOfTheHostsAlone();
    void selectTabOutOfRangeChangesNothing_data();
    void selectTabOutOfRangeChangesNothing();
    void updateTabTextChangesOnlyThatTab();
    void aTabOf100PxPutsTheUnderlineAt39And28();
    void theUnderlineIsCentredUnderAnyTab();
    void theUnderlineKeepsItsCurrentSize();
    void aClickGlidesToTheTabAndEmitsItsIndex();
    void aClickOnTheSelectedTabStillGlidesAndEmits();
    void aClickDuringAGlideStartsAnewTowardTheNewTab();
    void anUnknownIdDoesNothing();
    void resizingWithoutASelectedTabMovesNothing();
    void updateLayoutWithoutASelectedTabMovesNothing();
    void resizingMovesTheUnderlineAtOnce();
    void resizingEndsAGlideAtTheSelectedTab();
    void selectingDuringAGlideEndsTheGlide();
    void theUnderlineIsRightOnTheFirstShow();
    void theUnderlineFollowsTheLayout_data();
    void theUnderlineFollowsTheLayout();
    void theUnderlineIsRightAfterChangesOfAHiddenStrip();
    void aGlideEndsWhereTheLayoutHasPutItsTab();
    void theDeletedTabLeavesAGapInTheIndices();
    void ofTabsThatShareAnIndexTheClickedOneIsUnderlined();
    void aStripWithoutItsSelectedTabHasNoSelection();
    void worksOnWithoutUnderline();
    void withoutGlideTheUnderlineMovesAtOnce();
    void worksOnWithoutLayout();
    void mayBeDeletedInItsSignal();
    void mayBeDeletedWhenItsGlideStarts();
    void itsPartsMayBeDeletedWhenItsGlideStops_data();
    void itsPartsMayBeDeletedWhenItsGlideStops();
    void takesAnyText_data();
    void takesAnyText();
};

void TestWyFlatTab::registersItsSignalAndSlots()
{
    WY_COMPARE_CONTRACT(WyFlatTab, {"SignalSelectChanged(int nIndex)"},
                        {"SlotUpdateLayout()", "SlotGroupButtonClicked(int)"}, {});
}

void TestWyFlatTab::startsWithoutTabsAndWithTheUnderlineAtTheOrigin()
{
    WyFlatTab strip;
    QCOMPARE(strip.CurrentSelect(), -1);
    QVERIFY(!tab(strip, 0));
    QVERIFY(underline(strip));
    QCOMPARE(underline(strip)->parentWidget(), &strip);
    QCOMPARE(underline(strip)->geometry(), QRect(0, 0, 20, 3));
    QCOMPARE(underline(strip)->minimumSize(), QSize(20, 3));
    QCOMPARE(underline(strip)->maximumSize(), QSize(20, 3));
}

void TestWyFlatTab::lengthwiseLayoutIsCentred()
{
    WyFlatTab strip;
    auto* layout = qobject_cast<QHBoxLayout*>(strip.layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 20);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->alignment(), Qt::Alignment(Qt::AlignCenter));
}

void TestWyFlatTab::theUnderlineGlidesForThreeTenthsOfASecond()
{
    WyFlatTab strip;
    QCOMPARE(strip.findChildren<QPropertyAnimation*>().size(), 1);
    QCOMPARE(glide(strip)->parent(), &strip);
    QCOMPARE(glide(strip)->targetObject(), underline(strip));
    QCOMPARE(glide(strip)->propertyName(), QByteArray("geometry"));
    QCOMPARE(glide(strip)->duration(), 300);
    QCOMPARE(glide(strip)->easingCurve(), QEasingCurve(QEasingCurve::OutCirc));
}

void TestWyFlatTab::addedTabsAreCheckableAndTakeNoFocus()
{
    WyFlatTab strip;
    addTabs(strip, {"One", "Two", "Three"});
    const QList<QPushButton*> tabs = strip.findChildren<QPushButton*>();
    QCOMPARE(tabs.size(), 3);
    QCOMPARE(strip.layout()->count(), 3);
    for (int i = 0; i < tabs.size(); ++i) {
        QCOMPARE(tabs.at(i)->text(), QStringList({"One", "Two", "Three"}).at(i));
        QCOMPARE(tabs.at(i)->parentWidget(), &strip);
        QCOMPARE(tabs.at(i)->focusPolicy(), Qt::NoFocus);
        QCOMPARE(tabs.at(i)->minimumSize(), QSize(40, 32));
        QCOMPARE(tabs.at(i)->maximumHeight(), 32);
        QCOMPARE(tabs.at(i)->maximumWidth(), QWIDGETSIZE_MAX);
        QVERIFY(tabs.at(i)->isCheckable());
        QVERIFY(!tabs.at(i)->isChecked());
        QCOMPARE(tabs.at(i)->group()->id(tabs.at(i)), i);
        QVERIFY(tabs.at(i)->group()->exclusive());
        QVERIFY(!tabs.at(i)->group()->parent());
        QCOMPARE(strip.layout()->itemAt(i)->widget(), tabs.at(i));
    }
    QCOMPARE(strip.CurrentSelect(), -1);
}

void TestWyFlatTab::selectTabMovesTheUnderlineAtOnceAndSilently()
{
    ShownStrip shown;
    WyFlatTab& strip = shown.strip;
    QSignalSpy changed(&strip, &WyFlatTab::SignalSelectChanged);
    strip.SelectTab(1);
    QCOMPARE(strip.CurrentSelect(), 1);
    QVERIFY(tab(strip, 1)->isChecked());
    QVERIFY(!tab(strip, 0)->isChecked());
    QCOMPARE(underline(strip)->geometry(), belowTab(*tab(strip, 1)));
    QVERIFY(!isGliding(strip));
    QCOMPARE(changed.count(), 0);
}

void TestWyFlatTab::selectTabLeavesButtonsOfTheHostsAlone()
{
    ShownStrip shown;
    QPushButton own;
    own.setCheckable(true);
    tab(shown.strip, 0)->group()->addButton(&own);
    QVERIFY(own.group()->id(&own) < 0);
    shown.strip.SelectTab(own.group()->id(&own));
    QVERIFY(!own.isChecked());
    QCOMPARE(shown.strip.CurrentSelect(), 0);
}

void TestWyFlatTab::selectTabOutOfRangeChangesNothing_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("before the first") << -1;
    QTest::newRow("after the last") << 3;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
    QTest::newRow("largest") << std::numeric_limits<int>::max();
}

void TestWyFlatTab::selectTabOutOfRangeChangesNothing()
{
    QFETCH(int, index);
    ShownStrip shown;
    shown.strip.SelectTab(1);
    QSignalSpy changed(&shown.strip, &WyFlatTab::SignalSelectChanged);
    const QRect before = underline(shown.strip)->geometry();
    shown.strip.SelectTab(index);
    shown.strip.UpdateTabText(index, QStringLiteral("Nobody"));
    QCOMPARE(shown.strip.CurrentSelect(), 1);
    QCOMPARE(underline(shown.strip)->geometry(), before);
    QCOMPARE(changed.count(), 0);
    for (const QPushButton* button : shown.strip.findChildren<QPushButton*>())
        QVERIFY(button->text() != QLatin1String("Nobody"));
}

void TestWyFlatTab::updateTabTextChangesOnlyThatTab()
{
    ShownStrip shown;
    shown.strip.UpdateTabText(2, QStringLiteral("Tags"));
    QCOMPARE(tab(shown.strip, 0)->text(), QStringLiteral("Files"));
    QCOMPARE(tab(shown.strip, 1)->text(), QStringLiteral("Branches"));
    QCOMPARE(tab(shown.strip, 2)->text(), QStringLiteral("Tags"));
}

void TestWyFlatTab::aTabOf100PxPutsTheUnderlineAt39And28()
{
    WyFlatTab strip;
    strip.AddTab(QStringLiteral("Tab"));
    tab(strip, 0)->setGeometry(0, 0, 100, 32);
    strip.SelectTab(0);
    QCOMPARE(underline(strip)->geometry(), QRect(39, 28, 20, 3));
}

void TestWyFlatTab::theUnderlineIsCentredUnderAnyTab()
{
    WyFlatTab strip;
    strip.AddTab(QStringLiteral("Tab"));
    strip.SelectTab(0);
    QRandomGenerator random(46);
    const auto anywhere = [&random](int range) {
        const int distance = random.bounded(range);
        return random.bounded(2) ? distance : -distance;
    };
    for (int i = 0; i < 5000; ++i) {
        // Beyond half the range of int, left + right no longer fits into one.
        const int range = i % 2 ? 500 : 2000000000;
        tab(strip, 0)->setGeometry(anywhere(range), anywhere(range), random.bounded(40, 1000), 32);
        strip.SlotUpdateLayout();
        QCOMPARE(underline(strip)->geometry(), belowTab(*tab(strip, 0)));
    }
}

void TestWyFlatTab::theUnderlineKeepsItsCurrentSize()
{
    WyFlatTab strip;
    strip.AddTab(QStringLiteral("Tab"));
    underline(strip)->setMinimumSize(0, 0);
    underline(strip)->setMaximumSize(100, 100);
    underline(strip)->resize(31, 5);
    tab(strip, 0)->setGeometry(0, 0, 100, 32);
    strip.SelectTab(0);
    QCOMPARE(underline(strip)->geometry(), QRect(49 - 15, 28, 31, 5));
}

void TestWyFlatTab::aClickGlidesToTheTabAndEmitsItsIndex()
{
    ShownStrip shown;
    WyFlatTab& strip = shown.strip;
    QSignalSpy changed(&strip, &WyFlatTab::SignalSelectChanged);
    const QRect from = underline(strip)->geometry();
    QTest::mouseClick(tab(strip, 2), Qt::LeftButton);
    QCOMPARE(changed, QList<QVariantList>({{2}}));
    QCOMPARE(strip.CurrentSelect(), 2);
    QVERIFY(isGliding(strip));
    QCOMPARE(glide(strip)->startValue().toRect(), from);
    QCOMPARE(glide(strip)->endValue().toRect(), belowTab(*tab(strip, 2)));
    finishGlide(strip);
    QCOMPARE(underline(strip)->geometry(), belowTab(*tab(strip, 2)));
    QVERIFY(glide(strip)); // kept for the next click
    QCOMPARE(changed.count(), 1);
}

void TestWyFlatTab::aClickOnTheSelectedTabStillGlidesAndEmits()
{
    ShownStrip shown;
    QSignalSpy changed(&shown.strip, &WyFlatTab::SignalSelectChanged);
    const QRect place = underline(shown.strip)->geometry();
    tab(shown.strip, 0)->click();
    QCOMPARE(changed, QList<QVariantList>({{0}}));
    QVERIFY(isGliding(shown.strip));
    QCOMPARE(glide(shown.strip)->startValue().toRect(), place);
    QCOMPARE(glide(shown.strip)->endValue().toRect(), place);
}

void TestWyFlatTab::aClickDuringAGlideStartsAnewTowardTheNewTab()
{
    ShownStrip shown;
    WyFlatTab& strip = shown.strip;
    tab(strip, 2)->click();
    glide(strip)->setCurrentTime(100);
    const QRect halfway = underline(strip)->geometry();
    QVERIFY(halfway != belowTab(*tab(strip, 2)));
    tab(strip, 1)->click();
    QVERIFY(isGliding(strip));
    QVERIFY(glide(strip)->currentTime() < 100);
    QCOMPARE(glide(strip)->startValue().toRect(), halfway);
    QCOMPARE(glide(strip)->endValue().toRect(), belowTab(*tab(strip, 1)));
    finishGlide(strip);
    QCOMPARE(underline(strip)->geometry(), belowTab(*tab(strip, 1)));
}

void TestWyFlatTab::anUnknownIdDoesNothing()
{
    ShownStrip shown;
    QSignalSpy changed(&shown.strip, &WyFlatTab::SignalSelectChanged);
    shown.strip.SlotGroupButtonClicked(-1);
    shown.strip.SlotGroupButtonClicked(17);
    QVERIFY(!isGliding(shown.strip));
    QCOMPARE(changed.count(), 0);
}

void TestWyFlatTab::resizingWithoutASelectedTabMovesNothing()
{
    QWidget window;
    auto& strip = *new WyFlatTab(&window);
    addTabs(strip, {"One", "Two"});
    strip.resize(300, 40);
    window.show();
    strip.resize(500, 40);
    QCOMPARE(underline(strip)->geometry(), QRect(0, 0, 20, 3));
}

void TestWyFlatTab::updateLayoutWithoutASelectedTabMovesNothing()
{
    WyFlatTab strip;
    addTabs(strip, {"One", "Two"});
    strip.SlotUpdateLayout();
    QCOMPARE(underline(strip)->geometry(), QRect(0, 0, 20, 3));
}

void TestWyFlatTab::resizingMovesTheUnderlineAtOnce()
{
    ShownStrip shown;
    const QRect before = underline(shown.strip)->geometry();
    shown.strip.resize(900, 60);
    QVERIFY(underline(shown.strip)->geometry() != before);
    QCOMPARE(underline(shown.strip)->geometry(), belowTab(*tab(shown.strip, 0)));
    QVERIFY(!isGliding(shown.strip));
}

void TestWyFlatTab::resizingEndsAGlideAtTheSelectedTab()
{
    ShownStrip shown;
    tab(shown.strip, 2)->click();
    shown.strip.resize(900, 60);
    QVERIFY(!isGliding(shown.strip));
    QCOMPARE(underline(shown.strip)->geometry(), belowTab(*tab(shown.strip, 2)));
}

void TestWyFlatTab::selectingDuringAGlideEndsTheGlide()
{
    ShownStrip shown;
    tab(shown.strip, 2)->click();
    shown.strip.SelectTab(1);
    QVERIFY(!isGliding(shown.strip));
    QCOMPARE(underline(shown.strip)->geometry(), belowTab(*tab(shown.strip, 1)));
}

void TestWyFlatTab::theUnderlineIsRightOnTheFirstShow()
{
    QWidget window;
    auto& strip = *new WyFlatTab(&window);
    addTabs(strip, {"One", "Two"});
    strip.SelectTab(1);
    window.show();
    QVERIFY(tab(strip, 1)->x() > 0);
    QCOMPARE(underline(strip)->geometry(), belowTab(*tab(strip, 1)));
}

void TestWyFlatTab::theUnderlineFollowsTheLayout_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("tab added") << Change([](WyFlatTab& strip) { strip.AddTab("Wikis and more"); });
    QTest::newRow("longer text beside it")
        << Change([](WyFlatTab& strip) { strip.UpdateTabText(1, "Branches and tags"); });
    QTest::newRow("longer text elsewhere")
        << Change([](WyFlatTab& strip) { strip.UpdateTabText(2, "Releases and their notes"); });
    QTest::newRow("font") << Change([](WyFlatTab& strip) { strip.setFont(QFont("Sans", 22)); });
    QTest::newRow("style sheet") << Change(
        [](WyFlatTab& strip) { strip.setStyleSheet("QPushButton { padding: 0 31px; }"); });
    QTest::newRow("underline's style sheet") << Change([](WyFlatTab& strip) {
        strip.setStyleSheet("#label_tab { min-width: 20px; max-width: 20px; } "
                            "QPushButton { margin-left: 21px; }");
    });
    QTest::newRow("right to left") << Change(
        [](WyFlatTab& strip) { strip.setLayoutDirection(Qt::RightToLeft); });
    QTest::newRow("spacing") << Change([](WyFlatTab& strip) { strip.layout()->setSpacing(51); });
    QTest::newRow("margins") << Change(
        [](WyFlatTab& strip) { strip.layout()->setContentsMargins(90, 0, 0, 0); });
    QTest::newRow("another tab hidden") << Change([](WyFlatTab& strip) { tab(strip, 1)->hide(); });
    QTest::newRow("another tab deleted") << Change([](WyFlatTab& strip) { delete tab(strip, 1); });
    QTest::newRow("tab checked by the host, then added") << Change([](WyFlatTab& strip) {
        tab(strip, 2)->setChecked(true);
        strip.AddTab("New");
    });
    QTest::newRow("new tab selected at once") << Change([](WyFlatTab& strip) {
        strip.AddTab("New");
        strip.SelectTab(3);
    });
}

void TestWyFlatTab::theUnderlineFollowsTheLayout()
{
    QFETCH(Change, change);
    ShownStrip shown;
    WyFlatTab& strip = shown.strip;
    const QSize size = strip.size();
    const QRect before = underline(strip)->geometry();
    change(strip);
    // A new tab is shown in one round of events and gets its place in the next.
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
    QVERIFY(underline(strip)->geometry() != before);
    QCOMPARE(strip.size(), size); // else the resize handler alone would do
    const QPushButton* selected = nullptr;
    for (const QPushButton* button : strip.findChildren<QPushButton*>()) {
        if (button->isChecked())
            selected = button;
    }
    QVERIFY(selected);
    QCOMPARE(underline(strip)->geometry(), belowTab(*selected));
    QVERIFY(!isGliding(strip));
}

void TestWyFlatTab::theUnderlineIsRightAfterChangesOfAHiddenStrip()
{
    ShownStrip shown;
    WyFlatTab& strip = shown.strip;
    strip.hide();
    strip.AddTab(QStringLiteral("Wiki, a long one"));
    strip.UpdateTabText(0, QStringLiteral("Files and folders"));
    QCoreApplication::processEvents();
    const QRect before = underline(strip)->geometry();
    strip.show();
    QVERIFY(underline(strip)->geometry() != before);
    QCOMPARE(underline(strip)->geometry(), belowTab(*tab(strip, 0)));
}

void TestWyFlatTab::aGlideEndsWhereTheLayoutHasPutItsTab()
{
    ShownStrip shown;
    WyFlatTab& strip = shown.strip;
    tab(strip, 2)->click();
    glide(strip)->setCurrentTime(20);
    const QRect oldTarget = glide(strip)->endValue().toRect();
    strip.UpdateTabText(1, QStringLiteral("Branches and tags"));
    QCoreApplication::sendPostedEvents();
    QVERIFY(isGliding(strip));
    QVERIFY(belowTab(*tab(strip, 2)) != oldTarget);
    finishGlide(strip);
    QCOMPARE(underline(strip)->geometry(), belowTab(*tab(strip, 2)));
}

void TestWyFlatTab::theDeletedTabLeavesAGapInTheIndices()
{
    ShownStrip shown;
    WyFlatTab& strip = shown.strip;
    strip.AddTab(QStringLiteral("Wiki"));
    delete tab(strip, 1);
    strip.SelectTab(1);
    strip.UpdateTabText(1, QStringLiteral("Nobody"));
    strip.SlotGroupButtonClicked(1);
    strip.SelectTab(3); // three are left, so 3 is out of range
    QCOMPARE(strip.CurrentSelect(), 0);
    QSignalSpy changed(&strip, &WyFlatTab::SignalSelectChanged);
    tab(strip, 2)->click();
    QCOMPARE(changed, QList<QVariantList>({{3}}));
    QCOMPARE(strip.CurrentSelect(), 3);
}

void TestWyFlatTab::ofTabsThatShareAnIndexTheClickedOneIsUnderlined()
{
    ShownStrip shown;
    WyFlatTab& strip = shown.strip;
    delete tab(strip, 0);
    strip.AddTab(QStringLiteral("Wiki")); // the third tab again, so its index is 2
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
    QSignalSpy changed(&strip, &WyFlatTab::SignalSelectChanged);
    for (QPushButton* sharing : {tab(strip, 1), tab(strip, 2)}) {
        sharing->click();
        QCOMPARE(glide(strip)->endValue().toRect(), belowTab(*sharing));
    }
    QCOMPARE(changed, QList<QVariantList>({{2}, {2}}));
}

void TestWyFlatTab::aStripWithoutItsSelectedTabHasNoSelection()
{
    ShownStrip shown;
    WyFlatTab& strip = shown.strip;
    const QRect before = underline(strip)->geometry();
    delete tab(strip, 0);
    strip.SlotUpdateLayout();
    strip.resize(900, 60);
    QCoreApplication::processEvents();
    QCOMPARE(strip.CurrentSelect(), -1);
    QCOMPARE(underline(strip)->geometry(), before);
}

void TestWyFlatTab::worksOnWithoutUnderline()
{
    ShownStrip shown;
    QSignalSpy changed(&shown.strip, &WyFlatTab::SignalSelectChanged);
    delete underline(shown.strip);
    tab(shown.strip, 1)->click();
    shown.strip.SelectTab(2);
    shown.strip.resize(900, 60);
    shown.strip.AddTab(QStringLiteral("More"));
    QCoreApplication::processEvents();
    QCOMPARE(changed, QList<QVariantList>({{1}}));
    QCOMPARE(shown.strip.CurrentSelect(), 2);
}

void TestWyFlatTab::withoutGlideTheUnderlineMovesAtOnce()
{
    ShownStrip shown;
    QSignalSpy changed(&shown.strip, &WyFlatTab::SignalSelectChanged);
    delete glide(shown.strip);
    tab(shown.strip, 1)->click();
    QCOMPARE(underline(shown.strip)->geometry(), belowTab(*tab(shown.strip, 1)));
    shown.strip.SelectTab(2);
    QCOMPARE(underline(shown.strip)->geometry(), belowTab(*tab(shown.strip, 2)));
    shown.strip.UpdateTabText(0, QStringLiteral("Files and folders"));
    QCoreApplication::processEvents();
    QCOMPARE(underline(shown.strip)->geometry(), belowTab(*tab(shown.strip, 2)));
    QCOMPARE(changed, QList<QVariantList>({{1}}));
    QCOMPARE(shown.strip.CurrentSelect(), 2);
}

void TestWyFlatTab::worksOnWithoutLayout()
{
    ShownStrip shown;
    delete shown.strip.layout();
    shown.strip.AddTab(QStringLiteral("Unplaced"));
    shown.strip.SelectTab(3);
    QCOMPARE(shown.strip.CurrentSelect(), 3);
    QCOMPARE(underline(shown.strip)->geometry(), belowTab(*tab(shown.strip, 3)));
}

void TestWyFlatTab::mayBeDeletedInItsSignal()
{
    QWidget window;
    QPointer<WyFlatTab> strip = new WyFlatTab(&window);
    addTabs(*strip, {"One", "Two"});
    window.show();
    connect(strip, &WyFlatTab::SignalSelectChanged, this, [strip] { delete strip; });
    QTest::mouseClick(tab(*strip, 1), Qt::LeftButton);
    QVERIFY(!strip);
}

void TestWyFlatTab::mayBeDeletedWhenItsGlideStarts()
{
    QWidget window;
    QPointer<WyFlatTab> strip = new WyFlatTab(&window);
    addTabs(*strip, {"One", "Two"});
    window.show();
    connect(glide(*strip), &QAbstractAnimation::stateChanged, this, [strip] {
        glide(*strip)->disconnect();
        delete strip;
    });
    QTest::mouseClick(tab(*strip, 1), Qt::LeftButton);
    QVERIFY(!strip);
}

void TestWyFlatTab::itsPartsMayBeDeletedWhenItsGlideStops_data()
{
    QTest::addColumn<bool>("underlineToo");
    QTest::addColumn<bool>("clicks");
    QTest::newRow("glide, click") << false << true;
    QTest::newRow("glide, selection") << false << false;
    QTest::newRow("both, click") << true << true;
    QTest::newRow("both, selection") << true << false;
}

void TestWyFlatTab::itsPartsMayBeDeletedWhenItsGlideStops()
{
    QFETCH(bool, underlineToo);
    QFETCH(bool, clicks);
    ShownStrip shown;
    WyFlatTab& strip = shown.strip;
    tab(strip, 1)->click();
    connect(glide(strip), &QAbstractAnimation::stateChanged, this, [&strip, underlineToo] {
        glide(strip)->disconnect();
        delete glide(strip);
        if (underlineToo)
            delete underline(strip);
    });
    if (clicks)
        tab(strip, 2)->click();
    else
        strip.SelectTab(2);
    QCOMPARE(strip.CurrentSelect(), 2);
    QVERIFY(!glide(strip));
    if (!underlineToo)
        QCOMPARE(underline(strip)->geometry(), belowTab(*tab(strip, 2)));
}

void TestWyFlatTab::takesAnyText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("null") << QString();
    QTest::newRow("rich text") << "<b>bold</b>";
    QTest::newRow("right to left") << QString::fromUtf8("תיקיות");
    QTest::newRow("emoji") << QString::fromUtf8("👩‍💻 code");
    QTest::newRow("lines") << "one\ntwo";
    QTest::newRow("huge") << QString(20000, QLatin1Char('w'));
}

void TestWyFlatTab::takesAnyText()
{
    QFETCH(QString, text);
    QWidget window;
    auto& strip = *new WyFlatTab(&window);
    strip.AddTab(text);
    strip.SelectTab(0);
    window.show();
    QCoreApplication::processEvents();
    QCOMPARE(tab(strip, 0)->text(), text);
    QCOMPARE(underline(strip)->geometry(), belowTab(*tab(strip, 0)));
}

QTEST_MAIN(TestWyFlatTab)
#include "tst_wyflattab.moc"

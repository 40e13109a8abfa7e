#include "WyWidgets/wycontrol/WyFlatVTab.h"

#include "support/Contract.h"

#include <QButtonGroup>
#include <QLabel>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QRandomGenerator>
#include <QVBoxLayout>
#include <QtTest>

#include <functional>

using WyWidgets::WyFlatVTab;
using Change = std::function<void(WyFlatVTab&)>;
Q_DECLARE_METATYPE(Change)

namespace {

QPushButton* tab(const WyFlatVTab& list, int index)
{
    return list.findChildren<QPushButton*>().value(index);
}

QLabel* bar(const WyFlatVTab& list)
{
    return list.findChild<QLabel*>(QStringLiteral("label_line"));
}

QLabel* highlight(const WyFlatVTab& list)
{
    return list.findChild<QLabel*>(QStringLiteral("label_rect"));
}

QPropertyAnimation* glideOf(const WyFlatVTab& list, const QObject* marker)
{
    for (QPropertyAnimation* animation : list.findChildren<QPropertyAnimation*>()) {
        if (animation->targetObject() == marker)
            return animation;
    }
    return nullptr;
}

bool isGliding(const WyFlatVTab& list)
{
    const QList<QPropertyAnimation*> glides = list.findChildren<QPropertyAnimation*>();
    return std::any_of(glides.begin(), glides.end(), [](const QPropertyAnimation* glide) {
        return glide->state() == QAbstractAnimation::Running;
    });
}

void finishGlides(const WyFlatVTab& list)
{
    for (QPropertyAnimation* glide : list.findChildren<QPropertyAnimation*>())
        glide->setCurrentTime(300);
}

/// Where the 3 x 20 bar belongs for this tab, worked out from the tab's edges.
QRect besideTab(const QWidget& tab)
{
    const qint64 top = tab.y();
    const qint64 bottom = top + tab.height() - 1;
    const int middle = int((top + bottom) / 2);
    return QRect(tab.x() - 1, middle - 10, 3, 20);
}

QRect behindTab(const QWidget& tab)
{
    return QRect(tab.x(), tab.y(), 156, 30);
}

/// A shown list of three tabs whose first tab the user has chosen.
struct ShownList
{
    ShownList()
    {
        list.AddTab(QStringLiteral("General"));
        list.AddTab(QStringLiteral("Account"));
        list.AddTab(QStringLiteral("About"));
        list.resize(220, 300);
        window.resize(600, 600);
        window.show();
        QCoreApplication::processEvents();
        tab(list, 0)->click();
        finishGlides(list);
    }
    QWidget window;
    WyFlatVTab& list = *new WyFlatVTab(&window);
};

} // namespace

class TestWyFlatVTab : public QObject
{
    Q_OBJECT

private slots:
    void registersItsSignalAndSlot();
    void startsWithTheMarkersWhereTheFirstTabWillBe();
    void entriesStandBelowOneAnother();
    void bothMarkersGlideForThreeTenthsOfASecond();
    void addedTabsAreCheckableAndKeepTheirFocusPolicy();
    void tabsLieAboveTheMarkersAndTheBarAboveTheHighlight();
    void selectTabDoesNothing_data();
    void selectTabDoesNothing();
    void aClickGlidesBothMarkersAndEmitsTheIndex();
    void theHighlightStays156By30OnItsWayTo160By40();
    void aTabAt16And16PutsTheMarkersAtTheirFirstPlaces();
    void theMarkersFollowAnyTab();
    void aClickOnTheSelectedTabStillGlidesAndEmits();
    void returnInADialogIsLeftToItsDefaultButton();
    void aClickDuringAGlideStartsAnewTowardTheNewTab();
    void anUnknownIdDoesNothing();
    void resizingWithoutASelectedTabMovesNothing();
    void resizingMovesTheMarkersAtOnce();
    void resizingEndsAGlideAtTheSelectedTab();
    void aTabSelectedBeforeTheFirstShowHasItsMarkers();
    void theMarkersFollowTheLayout_data();
    void theMarkersFollowTheLayout();
    void aGlideEndsWhereTheLayoutHasPutItsTab();
    void theKeyboardSelects();
    void aDeletedTabLeavesAGapInTheIndices();
    void ofTabsThatShareAnIndexTheClickedOneIsMarked();
    void worksOnWithoutParts_data();
    void worksOnWithoutParts();
    void mayBeDeletedInItsSignal();
    void mayBeDeletedWhenAGlideStarts_data();
    void mayBeDeletedWhenAGlideStarts();
};

void TestWyFlatVTab::registersItsSignalAndSlot()
{
    WY_COMPARE_CONTRACT(WyFlatVTab, {"SignalSelectChanged(int nIndex)"}, {"SlotGroupButtonClicked(int)"}, {});
}

void TestWyFlatVTab::startsWithTheMarkersWhereTheFirstTabWillBe()
{
    WyFlatVTab list;
    QVERIFY(list.testAttribute(Qt::WA_StyledBackground));
    QVERIFY(bar(list));
    QCOMPARE(bar(list)->geometry(), QRect(15, 20, 3, 20));
    QCOMPARE(bar(list)->minimumSize(), QSize(3, 20));
    QCOMPARE(bar(list)->maximumSize(), QSize(3, 20));
    QVERIFY(highlight(list));
    QCOMPARE(highlight(list)->geometry(), QRect(16, 16, 156, 30));
    QCOMPARE(highlight(list)->minimumSize(), QSize(156, 30));
    QCOMPARE(highlight(list)->maximumSize(), QSize(156, 30));
}

void TestWyFlatVTab::entriesStandBelowOneAnother()
{
    WyFlatVTab list;
    auto* layout = qobject_cast<QVBoxLayout*>(list.layout());
    QVERIFY(layout);
    QCOMPARE(layout->spacing(), 4);
    QCOMPARE(layout->contentsMargins(), QMargins(16, 16, 16, 16));
    QCOMPARE(layout->alignment(), Qt::Alignment(Qt::AlignTop));
}

void TestWyFlatVTab::bothMarkersGlideForThreeTenthsOfASecond()
{
    WyFlatVTab list;
    QCOMPARE(list.findChildren<QPropertyAnimation*>().size(), 2);
    for (const QLabel* marker : {bar(list), highlight(list)}) {
        const QPropertyAnimation* glide = glideOf(list, marker);
        QVERIFY(glide);
        QCOMPARE(glide->parent(), &list);
        QCOMPARE(glide->propertyName(), QByteArray("geometry"));
        QCOMPARE(glide->duration(), 300);
        QCOMPARE(glide->easingCurve(), QEasingCurve(QEasingCurve::OutCirc));
    }
}

void TestWyFlatVTab::addedTabsAreCheckableAndKeepTheirFocusPolicy()
{
    QWidget window;
    auto& list = *new WyFlatVTab(&window);
    list.AddTab(QStringLiteral("General"));
    list.AddTab(QStringLiteral("Account"));
    list.AddTab(QStringLiteral("About"));
    list.resize(220, 300);
    window.show();
    const QList<QPushButton*> tabs = list.findChildren<QPushButton*>();
    QCOMPARE(tabs.size(), 3);
    const QPushButton plain;
    for (int i = 0; i < tabs.size(); ++i) {
        QCOMPARE(tabs.at(i)->text(), QStringList({"General", "Account", "About"}).at(i));
        QCOMPARE(tabs.at(i)->focusPolicy(), plain.focusPolicy());
        QCOMPARE(tabs.at(i)->minimumSize(), QSize(156, 30));
        QCOMPARE(tabs.at(i)->maximumHeight(), 30);
        QCOMPARE(tabs.at(i)->maximumWidth(), QWIDGETSIZE_MAX);
        QVERIFY(tabs.at(i)->isCheckable());
        QCOMPARE(tabs.at(i)->group()->id(tabs.at(i)), i);
        QVERIFY(tabs.at(i)->group()->exclusive());
        QVERIFY(!tabs.at(i)->group()->parent());
        QCOMPARE(tabs.at(i)->geometry(), QRect(16, 16 + 34 * i, 220 - 32, 30));
    }
}

void TestWyFlatVTab::tabsLieAboveTheMarkersAndTheBarAboveTheHighlight()
{
    ShownList shown;
    const QObjectList& stacking = shown.list.children();
    QVERIFY(stacking.indexOf(bar(shown.list)) > stacking.indexOf(highlight(shown.list)));
    QVERIFY(stacking.indexOf(tab(shown.list, 0)) > stacking.indexOf(bar(shown.list)));
}

void TestWyFlatVTab::selectTabDoesNothing_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("a tab") << 1;
    QTest::newRow("the selected tab") << 0;
    QTest::newRow("before the first") << -1;
    QTest::newRow("after the last") << 3;
}

void TestWyFlatVTab::selectTabDoesNothing()
{
    QFETCH(int, index);
    ShownList shown;
    QSignalSpy changed(&shown.list, &WyFlatVTab::SignalSelectChanged);
    const QRect barBefore = bar(shown.list)->geometry();
    const QRect highlightBefore = highlight(shown.list)->geometry();
    shown.list.SelectTab(index);
    QCoreApplication::processEvents();
    QVERIFY(tab(shown.list, 0)->isChecked());
    QVERIFY(!tab(shown.list, 1)->isChecked());
    QVERIFY(!isGliding(shown.list));
    QCOMPARE(bar(shown.list)->geometry(), barBefore);
    QCOMPARE(highlight(shown.list)->geometry(), highlightBefore);
    QCOMPARE(changed.count(), 0);
}

void TestWyFlatVTab::aClickGlidesBothMarkersAndEmitsTheIndex()
{
    ShownList shown;
    WyFlatVTab& list = shown.list;
    QSignalSpy changed(&list, &WyFlatVTab::SignalSelectChanged);
    QTest::mouseClick(tab(list, 2), Qt::LeftButton);
    QCOMPARE(changed, QList<QVariantList>({{2}}));
    QPropertyAnimation* barGlide = glideOf(list, bar(list));
    QPropertyAnimation* highlightGlide = glideOf(list, highlight(list));
    QCOMPARE(barGlide->state(), QAbstractAnimation::Running);
    QCOMPARE(highlightGlide->state(), QAbstractAnimation::Running);
    QCOMPARE(barGlide->startValue().toRect(), besideTab(*tab(list, 0)));
    QCOMPARE(barGlide->endValue().toRect(), besideTab(*tab(list, 2)));
    QCOMPARE(highlightGlide->startValue().toRect(), behindTab(*tab(list, 0)));
    finishGlides(list);
    QCOMPARE(bar(list)->geometry(), besideTab(*tab(list, 2)));
    QCOMPARE(highlight(list)->geometry(), behindTab(*tab(list, 2)));
    QCOMPARE(list.findChildren<QPropertyAnimation*>().size(), 2); // kept for the next click
}

void TestWyFlatVTab::theHighlightStays156By30OnItsWayTo160By40()
{
    ShownList shown;
    WyFlatVTab& list = shown.list;
    tab(list, 1)->click();
    QPropertyAnimation* glide = glideOf(list, highlight(list));
    QCOMPARE(glide->endValue().toRect(), QRect(tab(list, 1)->pos(), QSize(160, 40)));
    for (int msec : {0, 50, 150, 299, 300}) {
        glide->setCurrentTime(msec);
        QCOMPARE(highlight(list)->size(), QSize(156, 30));
    }
    QCOMPARE(highlight(list)->pos(), tab(list, 1)->pos());
}

void TestWyFlatVTab::aTabAt16And16PutsTheMarkersAtTheirFirstPlaces()
{
    ShownList shown;
    QCOMPARE(tab(shown.list, 0)->geometry().topLeft(), QPoint(16, 16));
    QCOMPARE(bar(shown.list)->geometry(), QRect(QPoint(15, 20), QPoint(17, 39)));
    QCOMPARE(highlight(shown.list)->geometry(), QRect(16, 16, 156, 30));
}

void TestWyFlatVTab::theMarkersFollowAnyTab()
{
    WyFlatVTab list;
    list.AddTab(QStringLiteral("Tab"));
    QRandomGenerator random(46);
    const auto anywhere = [&random](int range) {
        const int distance = random.bounded(range);
        return random.bounded(2) ? distance : -distance;
    };
    for (int i = 0; i < 3000; ++i) {
        const int range = i % 2 ? 500 : 2000000000;
        tab(list, 0)->setGeometry(anywhere(range), anywhere(range), random.bounded(156, 1000), 30);
        list.SlotGroupButtonClicked(0);
        QCOMPARE(glideOf(list, bar(list))->endValue().toRect(), besideTab(*tab(list, 0)));
        glideOf(list, highlight(list))->setCurrentTime(300);
        QCOMPARE(highlight(list)->geometry(), behindTab(*tab(list, 0)));
    }
}

void TestWyFlatVTab::aClickOnTheSelectedTabStillGlidesAndEmits()
{
    ShownList shown;
    QSignalSpy changed(&shown.list, &WyFlatVTab::SignalSelectChanged);
    tab(shown.list, 0)->click();
    QCOMPARE(changed, QList<QVariantList>({{0}}));
    QVERIFY(isGliding(shown.list));
}

void TestWyFlatVTab::returnInADialogIsLeftToItsDefaultButton()
{
    QDialog dialog;
    auto* row = new QHBoxLayout(&dialog);
    auto* list = new WyFlatVTab;
    list->AddTab(QStringLiteral("General"));
    list->AddTab(QStringLiteral("Account"));
    auto* edit = new QLineEdit;
    auto* accept = new QPushButton(QStringLiteral("OK"));
    for (QWidget* widget : std::initializer_list<QWidget*>{list, edit, accept})
        row->addWidget(widget);
    dialog.show();
    dialog.activateWindow();
    QTRY_VERIFY(tab(*list, 0)->hasFocus());
    QSignalSpy changed(list, &WyFlatVTab::SignalSelectChanged);
    QSignalSpy accepted(accept, &QPushButton::clicked);
    QTest::keyClick(tab(*list, 0), Qt::Key_Return);
    QCOMPARE(accepted.count(), 1);
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(accepted.count(), 2);
    QCOMPARE(changed.count(), 0);
    QTest::keyClick(tab(*list, 1), Qt::Key_Space);
    QCOMPARE(changed, QList<QVariantList>({{1}}));
}

void TestWyFlatVTab::aClickDuringAGlideStartsAnewTowardTheNewTab()
{
    ShownList shown;
    WyFlatVTab& list = shown.list;
    tab(list, 2)->click();
    glideOf(list, bar(list))->setCurrentTime(100);
    const QRect halfway = bar(list)->geometry();
    tab(list, 1)->click();
    QCOMPARE(glideOf(list, bar(list))->startValue().toRect(), halfway);
    QVERIFY(glideOf(list, bar(list))->currentTime() < 100);
    finishGlides(list);
    QCOMPARE(bar(list)->geometry(), besideTab(*tab(list, 1)));
    QCOMPARE(highlight(list)->geometry(), behindTab(*tab(list, 1)));
}

void TestWyFlatVTab::anUnknownIdDoesNothing()
{
    ShownList shown;
    QSignalSpy changed(&shown.list, &WyFlatVTab::SignalSelectChanged);
    shown.list.SlotGroupButtonClicked(-1);
    shown.list.SlotGroupButtonClicked(17);
    QVERIFY(!isGliding(shown.list));
    QCOMPARE(changed.count(), 0);
}

void TestWyFlatVTab::resizingWithoutASelectedTabMovesNothing()
{
    QWidget window;
    auto& list = *new WyFlatVTab(&window);
    list.AddTab(QStringLiteral("One"));
    list.resize(300, 300);
    window.show();
    list.layout()->setContentsMargins(40, 40, 40, 40);
    list.resize(400, 400);
    QCoreApplication::processEvents();
    QCOMPARE(tab(list, 0)->pos(), QPoint(40, 40));
    QCOMPARE(bar(list)->pos(), QPoint(15, 20));
    QCOMPARE(highlight(list)->pos(), QPoint(16, 16));
}

void TestWyFlatVTab::resizingMovesTheMarkersAtOnce()
{
    ShownList shown;
    shown.list.layout()->setAlignment(Qt::AlignBottom);
    QCoreApplication::processEvents();
    shown.list.resize(300, 500);
    QCOMPARE(tab(shown.list, 2)->geometry().bottom(), 500 - 16 - 1);
    QCOMPARE(bar(shown.list)->geometry(), besideTab(*tab(shown.list, 0)));
    QCOMPARE(highlight(shown.list)->geometry(), behindTab(*tab(shown.list, 0)));
    QVERIFY(!isGliding(shown.list));
}

void TestWyFlatVTab::resizingEndsAGlideAtTheSelectedTab()
{
    ShownList shown;
    tab(shown.list, 2)->click();
    shown.list.resize(300, 500);
    QVERIFY(!isGliding(shown.list));
    QCOMPARE(bar(shown.list)->geometry(), besideTab(*tab(shown.list, 2)));
    QCOMPARE(highlight(shown.list)->geometry(), behindTab(*tab(shown.list, 2)));
}

void TestWyFlatVTab::aTabSelectedBeforeTheFirstShowHasItsMarkers()
{
    QWidget window;
    auto& list = *new WyFlatVTab(&window);
    list.AddTab(QStringLiteral("One"));
    list.AddTab(QStringLiteral("Two"));
    tab(list, 1)->setChecked(true);
    list.resize(220, 300);
    window.show();
    QCOMPARE(tab(list, 1)->pos(), QPoint(16, 50));
    QCOMPARE(bar(list)->geometry(), besideTab(*tab(list, 1)));
    QCOMPARE(highlight(list)->geometry(), behindTab(*tab(list, 1)));
}

void TestWyFlatVTab::theMarkersFollowTheLayout_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("spacing") << Change([](WyFlatVTab& list) { list.layout()->setSpacing(21); });
    QTest::newRow("margins") << Change(
        [](WyFlatVTab& list) { list.layout()->setContentsMargins(30, 30, 0, 0); });
    QTest::newRow("tab before it hidden") << Change([](WyFlatVTab& list) { tab(list, 0)->hide(); });
    QTest::newRow("tab before it deleted") << Change([](WyFlatVTab& list) { delete tab(list, 0); });
    QTest::newRow("style sheet") << Change(
        [](WyFlatVTab& list) { list.setStyleSheet("QPushButton { min-height: 44px; max-height: 44px; }"); });
}

void TestWyFlatVTab::theMarkersFollowTheLayout()
{
    QFETCH(Change, change);
    ShownList shown;
    WyFlatVTab& list = shown.list;
    const QPushButton* selected = tab(list, 2);
    tab(list, 2)->click();
    finishGlides(list);
    const QSize size = list.size();
    const QRect before = bar(list)->geometry();
    change(list);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(list.size(), size); // else the resize handler alone would do
    QVERIFY(bar(list)->geometry() != before);
    QCOMPARE(bar(list)->geometry(), besideTab(*selected));
    QCOMPARE(highlight(list)->geometry(), behindTab(*selected));
}

void TestWyFlatVTab::aGlideEndsWhereTheLayoutHasPutItsTab()
{
    ShownList shown;
    WyFlatVTab& list = shown.list;
    tab(list, 2)->click();
    list.layout()->setSpacing(21);
    QCoreApplication::sendPostedEvents();
    QVERIFY(isGliding(list));
    finishGlides(list);
    QCOMPARE(bar(list)->geometry(), besideTab(*tab(list, 2)));
    QCOMPARE(highlight(list)->geometry(), behindTab(*tab(list, 2)));
}

void TestWyFlatVTab::theKeyboardSelects()
{
    ShownList shown;
    QSignalSpy changed(&shown.list, &WyFlatVTab::SignalSelectChanged);
    tab(shown.list, 1)->setFocus();
    QTest::keyClick(tab(shown.list, 1), Qt::Key_Space);
    QCOMPARE(changed, QList<QVariantList>({{1}}));
    QVERIFY(tab(shown.list, 1)->isChecked());
}

void TestWyFlatVTab::aDeletedTabLeavesAGapInTheIndices()
{
    ShownList shown;
    QSignalSpy changed(&shown.list, &WyFlatVTab::SignalSelectChanged);
    delete tab(shown.list, 1);
    shown.list.SlotGroupButtonClicked(1);
    QCOMPARE(changed.count(), 0);
    tab(shown.list, 1)->click();
    QCOMPARE(changed, QList<QVariantList>({{2}}));
}

void TestWyFlatVTab::ofTabsThatShareAnIndexTheClickedOneIsMarked()
{
    ShownList shown;
    WyFlatVTab& list = shown.list;
    delete tab(list, 0);
    list.AddTab(QStringLiteral("More")); // the third tab again, so its index is 2
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
    for (QPushButton* sharing : {tab(list, 1), tab(list, 2)}) {
        sharing->click();
        finishGlides(list);
        QCOMPARE(bar(list)->geometry(), besideTab(*sharing));
        QCOMPARE(highlight(list)->geometry(), behindTab(*sharing));
    }
}

void TestWyFlatVTab::worksOnWithoutParts_data()
{
    QTest::addColumn<Change>("remove");
    QTest::newRow("selected tab") << Change([](WyFlatVTab& list) { delete tab(list, 0); });
    QTest::newRow("bar") << Change([](WyFlatVTab& list) { delete bar(list); });
    QTest::newRow("highlight") << Change([](WyFlatVTab& list) { delete highlight(list); });
    QTest::newRow("glide") << Change([](WyFlatVTab& list) { delete glideOf(list, bar(list)); });
    QTest::newRow("layout") << Change([](WyFlatVTab& list) { delete list.layout(); });
}

void TestWyFlatVTab::worksOnWithoutParts()
{
    QFETCH(Change, remove);
    ShownList shown;
    QSignalSpy changed(&shown.list, &WyFlatVTab::SignalSelectChanged);
    QPushButton* other = tab(shown.list, 1);
    remove(shown.list);
    shown.list.resize(300, 400);
    other->click();
    shown.list.resize(320, 400);
    shown.list.AddTab(QStringLiteral("More"));
    QCoreApplication::processEvents();
    QCOMPARE(changed, QList<QVariantList>({{1}}));
    QVERIFY(other->isChecked());
    if (bar(shown.list))
        QCOMPARE(bar(shown.list)->geometry(), besideTab(*other));
    if (highlight(shown.list))
        QCOMPARE(highlight(shown.list)->geometry(), behindTab(*other));
}

void TestWyFlatVTab::mayBeDeletedInItsSignal()
{
    QWidget window;
    QPointer<WyFlatVTab> list = new WyFlatVTab(&window);
    list->AddTab(QStringLiteral("One"));
    window.show();
    connect(list, &WyFlatVTab::SignalSelectChanged, this, [list] { delete list; });
    QTest::mouseClick(tab(*list, 0), Qt::LeftButton);
    QVERIFY(!list);
}

void TestWyFlatVTab::mayBeDeletedWhenAGlideStarts_data()
{
    QTest::addColumn<int>("glide");
    QTest::newRow("bar") << 0;
    QTest::newRow("highlight") << 1;
}

void TestWyFlatVTab::mayBeDeletedWhenAGlideStarts()
{
    QFETCH(int, glide);
    QWidget window;
    QPointer<WyFlatVTab> list = new WyFlatVTab(&window);
    list->AddTab(QStringLiteral("One"));
    window.show();
    QPropertyAnimation* animation = list->findChildren<QPropertyAnimation*>().at(glide);
    connect(animation, &QAbstractAnimation::stateChanged, this, [list, animation] {
        animation->disconnect();
        delete list;
    });
    QTest::mouseClick(tab(*list, 0), Qt::LeftButton);
    QVERIFY(!list);
}

QTEST_MAIN(TestWyFlatVTab)
#include "tst_wyflatvtab.moc"

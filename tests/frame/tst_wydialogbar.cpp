#include "WyWidgets/frame/WyDialogBar.h"

#include "support/Contract.h"
#include "support/RecordingStyle.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QtTest>

using WyTest::RecordingStyle;
using WyWidgets::WyDialogBar;

namespace {

QLabel* titleOf(const WyDialogBar& bar)
{
    return bar.findChild<QLabel*>(QStringLiteral("dialog_title"));
}

} // namespace

class TestWyDialogBar : public QObject
{
    Q_OBJECT

private slots:
    void registersOneSlot();
    void paintsAStyledBackground();
    void theLayoutHoldsTheTitleAlone();
    void theTitleIsCentredAndActive();
    void theBarStartsActive();
    void setTitleSetsTheText_data();
    void setTitleSetsTheText();
    void setTitleWithoutLabelDoesNothing();
    void thereIsNoCloseButtonUntilTheHostAddsOne();
    void theCloseButtonIsFoundHoweverDeep();
    void onlyAPushButtonCountsAsCloseButton();
    void activationReachesBarAndTitle();
    void activationPolishesThroughTheBarsStyleWithoutUnpolishing();
    void activationWithoutTitleOnlyTouchesTheBar();
    void styleSheetsFollowTheActivation();
    void aPressReachesTheParent();
};

void TestWyDialogBar::registersOneSlot()
{
    WY_COMPARE_CONTRACT(WyDialogBar, {}, {"SlotWindowActive(bool active)"}, {});
}

void TestWyDialogBar::paintsAStyledBackground()
{
    QVERIFY(WyDialogBar(nullptr).testAttribute(Qt::WA_StyledBackground));
}

void TestWyDialogBar::theLayoutHoldsTheTitleAlone()
{
    WyDialogBar bar(nullptr);
    auto* layout = bar.findChild<QHBoxLayout*>(QStringLiteral("main_layout"));
    QVERIFY(layout);
    QCOMPARE(bar.layout(), layout);
    QCOMPARE(layout->contentsMargins(), QMargins(10, 0, 10, 0));
    QCOMPARE(layout->spacing(), 10);
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->itemAt(0)->widget(), titleOf(bar));
    QCOMPARE(layout->stretch(0), 0);
    QCOMPARE(layout->itemAt(0)->alignment(), Qt::Alignment());
    QCOMPARE(bar.findChildren<QWidget*>().size(), 1);
}

void TestWyDialogBar::theTitleIsCentredAndActive()
{
    WyDialogBar bar(nullptr);
    QLabel* title = titleOf(bar);
    QVERIFY(title);
    QCOMPARE(title->alignment(), Qt::Alignment(Qt::AlignHCenter | Qt::AlignVCenter));
    QCOMPARE(title->property("active"), QVariant(true));
    QVERIFY(title->text().isEmpty());
}

void TestWyDialogBar::theBarStartsActive()
{
    QCOMPARE(WyDialogBar(nullptr).property("active"), QVariant(true));
}

void TestWyDialogBar::setTitleSetsTheText_data()
{
    QTest::addColumn<bool>("flag");
    QTest::newRow("true") << true;
    QTest::newRow("false, ignored") << false;
}

void TestWyDialogBar::setTitleSetsTheText()
{
    QFETCH(bool, flag);
    WyDialogBar bar(nullptr);
    bar.SetTitle(QStringLiteral("About <b>WyWidgets</b>"), flag);
    QCOMPARE(titleOf(bar)->text(), QStringLiteral("About <b>WyWidgets</b>"));
    QCOMPARE(titleOf(bar)->alignment(), Qt::Alignment(Qt::AlignCenter));
    bar.SetTitle(QString(), flag);
    QVERIFY(titleOf(bar)->text().isEmpty());
}

void TestWyDialogBar::setTitleWithoutLabelDoesNothing()
{
    WyDialogBar bar(nullptr);
    delete titleOf(bar);
    bar.SetTitle(QStringLiteral("Title"), true);
    QVERIFY(bar.findChildren<QWidget*>().isEmpty());
}

void TestWyDialogBar::thereIsNoCloseButtonUntilTheHostAddsOne()
{
    WyDialogBar bar(nullptr);
    QVERIFY(!bar.GetCloseButton());
    auto* button = new QPushButton(&bar);
    button->setObjectName(QStringLiteral("dialog_close"));
    QCOMPARE(bar.GetCloseButton(), button);
    delete button;
    QVERIFY(!bar.GetCloseButton());
}

void TestWyDialogBar::theCloseButtonIsFoundHoweverDeep()
{
    WyDialogBar bar(nullptr);
    auto* group = new QWidget(&bar);
    auto* button = new QPushButton(group);
    button->setObjectName(QStringLiteral("dialog_close"));
    QCOMPARE(bar.GetCloseButton(), button);
}

void TestWyDialogBar::onlyAPushButtonCountsAsCloseButton()
{
    WyDialogBar bar(nullptr);
    (new QLabel(&bar))->setObjectName(QStringLiteral("dialog_close"));
    QVERIFY(!bar.GetCloseButton());
}

void TestWyDialogBar::activationReachesBarAndTitle()
{
    WyDialogBar bar(nullptr);
    for (bool active : {false, true, true, false}) {
        bar.SlotWindowActive(active);
        QCOMPARE(bar.property("active"), QVariant(active));
        QCOMPARE(titleOf(bar)->property("active"), QVariant(active));
    }
}

void TestWyDialogBar::activationPolishesThroughTheBarsStyleWithoutUnpolishing()
{
    RecordingStyle barStyle;
    RecordingStyle titleStyle;
    WyDialogBar bar(nullptr);
    bar.setStyle(&barStyle);
    titleOf(bar)->setStyle(&titleStyle);
    bar.ensurePolished();
    titleOf(bar)->ensurePolished();
    barStyle.calls.clear();
    titleStyle.calls.clear();
    bar.SlotWindowActive(false);
    QCOMPARE(barStyle.calls, QStringList({QStringLiteral("polish WyWidgets::WyDialogBar active=false"),
                                          QStringLiteral("polish QLabel dialog_title active=false")}));
    QVERIFY(titleStyle.calls.isEmpty());
}

void TestWyDialogBar::activationWithoutTitleOnlyTouchesTheBar()
{
    WyDialogBar bar(nullptr);
    delete titleOf(bar);
    bar.SlotWindowActive(false);
    QCOMPARE(bar.property("active"), QVariant(false));
}

void TestWyDialogBar::styleSheetsFollowTheActivation()
{
    WyDialogBar bar(nullptr);
    bar.setStyleSheet(QStringLiteral("#dialog_title { background: #00FF00; }"
                                     "#dialog_title[active=\"false\"] { background: #FF0000; }"));
    bar.SetTitle(QStringLiteral(" "));
    bar.resize(100, 32);
    bar.show();
    const QPoint middle = titleOf(bar)->geometry().center();
    QCOMPARE(bar.grab().toImage().pixelColor(middle * bar.devicePixelRatioF()), QColor(0, 255, 0));
    bar.SlotWindowActive(false);
    QCOMPARE(bar.grab().toImage().pixelColor(middle * bar.devicePixelRatioF()), QColor(255, 0, 0));
    bar.SlotWindowActive(true);
    QCOMPARE(bar.grab().toImage().pixelColor(middle * bar.devicePixelRatioF()), QColor(0, 255, 0));
}

void TestWyDialogBar::aPressReachesTheParent()
{
    WyDialogBar bar(nullptr);
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    press.accept();
    QCoreApplication::sendEvent(&bar, &press);
    QVERIFY(!press.isAccepted());
}

QTEST_MAIN(TestWyDialogBar)
#include "tst_wydialogbar.moc"

#include "WyWidgets/wycontrol/WyBubbleTip.h"

#include "support/ArrowPlate.h"
#include "support/Contract.h"

#include <QLabel>
#include <QVBoxLayout>
#include <QtTest>

using WyTest::ArrowPlate;
using WyWidgets::WyBubbleTip;
using WyWidgets::WyBubbleWidget;

namespace {

QLabel* labelOf(const WyBubbleTip& tip)
{
    return tip.findChild<QLabel*>(QStringLiteral("label_text"));
}

const QString kLongText =
    QStringLiteral("A text that is long enough to need several lines in a label that may "
                   "wrap its words where it likes, and so makes the bubble larger.");

} // namespace

class TestWyBubbleTip : public QObject
{
    Q_OBJECT

private slots:
    void registersNothing();
    void isABubbleWithoutShadow();
    void holdsAWrappedLabelInAPaddedPanel();
    void isAsLargeAsItsText();
    void movesByTheStoredPositionOfItsContent();
    void movesItsTipToThePointBeforeTheFirstShow();
    void withoutItsLabelItTakesNoText();
    void makesItsLabelOnlyOnce();
};

void TestWyBubbleTip::registersNothing()
{
    WY_COMPARE_CONTRACT(WyBubbleTip, {}, {}, {});
    QCOMPARE(WyBubbleTip::staticMetaObject.superClass(), &WyBubbleWidget::staticMetaObject);
}

void TestWyBubbleTip::isABubbleWithoutShadow()
{
    QWidget parent;
    WyBubbleTip tip(&parent);
    QCOMPARE(tip.parentWidget(), &parent);
    QVERIFY(tip.isHidden());
    QCOMPARE(tip.windowFlags(), Qt::ToolTip | Qt::FramelessWindowHint);
    QVERIFY(!tip.graphicsEffect());
    QVERIFY(tip.testAttribute(Qt::WA_StyledBackground));
    QCOMPARE(tip.layout()->contentsMargins(), QMargins(16, 8, 16, 8));
    QCOMPARE(tip.layout()->sizeConstraint(), QLayout::SetFixedSize);
}

void TestWyBubbleTip::holdsAWrappedLabelInAPaddedPanel()
{
    WyBubbleTip tip;
    QLabel* label = labelOf(tip);
    QVERIFY(label);
    QCOMPARE(label->minimumWidth(), 96);
    QVERIFY(label->wordWrap());
    QWidget* panel = label->parentWidget();
    QCOMPARE(QByteArray(panel->metaObject()->className()), QByteArray("QWidget"));
    QCOMPARE(panel->parentWidget(), &tip);
    QVERIFY(qobject_cast<QVBoxLayout*>(panel->layout()));
    QCOMPARE(panel->layout()->contentsMargins(), QMargins(10, 10, 10, 10));
    QCOMPARE(panel->layout()->spacing(), 0);
    QCOMPARE(tip.layout()->itemAt(0)->widget(), panel);
}

void TestWyBubbleTip::isAsLargeAsItsText()
{
    WyBubbleTip tip;
    tip.SetBubbleTip(QStringLiteral("short"));
    tip.show();
    const QSize small = tip.size();
    QCOMPARE(small.width(), 16 + 10 + 96 + 10 + 16);
    tip.SetBubbleTip(kLongText);
    QCOMPARE(labelOf(tip)->text(), kLongText);
    QTRY_VERIFY(tip.height() > small.height());
    QVERIFY(labelOf(tip)->height() >= labelOf(tip)->heightForWidth(labelOf(tip)->width()));
    tip.SetBubbleTip(QStringLiteral("short"));
    QTRY_COMPARE(tip.size(), small);
}

void TestWyBubbleTip::movesByTheStoredPositionOfItsContent()
{
    WyBubbleTip tip;
    tip.SetBubbleTip(QStringLiteral("short"));
    tip.myMove(400, 300);
    // The panel lies at (16, 8); the tip is placed as if it lay at (10, 10).
    QCOMPARE(tip.pos(), QPoint(400 - 10 + 8, 300 - (10 + 48) - 8));
    tip.show();
    QCOMPARE(labelOf(tip)->parentWidget()->pos(), QPoint(16, 8));
}

void TestWyBubbleTip::movesItsTipToThePointBeforeTheFirstShow()
{
    for (int side = 0; side < 4; ++side) {
        WyBubbleTip tip;
        tip.SetBubbleTip(kLongText);
        tip.setStyleSheet(QStringLiteral("QLabel { font-size: 27px; }"));
        tip.setDerection(WyBubbleWidget::Derection(side));
        tip.myMove(350, 340);
        const QPoint position = tip.pos();
        tip.show();
        QCoreApplication::processEvents();
        QCOMPARE(tip.pos(), position);
        const QSize content = labelOf(tip)->parentWidget()->size();
        const ArrowPlate plate{QRect(QPoint(10, 10), content), 48, 16, 8, side, 8.0};
        QCOMPARE(tip.pos() + plate.tip(), QPoint(350, 340));
    }
}

void TestWyBubbleTip::withoutItsLabelItTakesNoText()
{
    WyBubbleTip tip;
    delete labelOf(tip);
    tip.SetBubbleTip(kLongText);
    QVERIFY(!labelOf(tip));
    tip.InitView();
    QVERIFY(labelOf(tip));
    tip.SetBubbleTip(kLongText);
    QCOMPARE(labelOf(tip)->text(), kLongText);
}

void TestWyBubbleTip::makesItsLabelOnlyOnce()
{
    WyBubbleTip tip;
    tip.InitView();
    QCOMPARE(tip.findChildren<QLabel*>().size(), 1);
}

QTEST_MAIN(TestWyBubbleTip)
#include "tst_wybubbletip.moc"

#include "WyWidgets/wycontrol/WyLabel.h"

#include "support/Contract.h"

#include <QtTest>

using WyWidgets::WyLabel;

Q_DECLARE_METATYPE(Qt::MouseButton)

namespace {

bool sendMouse(QWidget* widget, QEvent::Type type, Qt::MouseButton button, QPoint pos = QPoint(3, 3))
{
    QMouseEvent event(type, pos, button, button, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

} // namespace

class TestWyLabel : public QObject
{
    Q_OBJECT

private slots:
    void registersOneSignalAndOneSlot();
    void isAPlainLabelOfItsParent();
    void everyPressCounts_data();
    void everyPressCounts();
    void onlyPressesCount();
    void theSecondPressOfADoubleClickCountsToo();
    void signalsBeforeThePressGoesOn();
    void aPlainLabelLetsThePressThrough();
    void theSlotDoesNothing();
    void mayBeDeletedWhenClicked();
};

void TestWyLabel::registersOneSignalAndOneSlot()
{
    WY_COMPARE_CONTRACT(WyLabel, {"clicked()"}, {"slotClicked()"}, {});
}

void TestWyLabel::isAPlainLabelOfItsParent()
{
    QWidget parent;
    auto* label = new WyLabel(&parent);
    QCOMPARE(label->parentWidget(), &parent);
    QVERIFY(label->text().isEmpty());
    QVERIFY(label->objectName().isEmpty());
    QVERIFY(label->children().isEmpty());
}

void TestWyLabel::everyPressCounts_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
    QTest::newRow("back") << Qt::BackButton;
}

void TestWyLabel::everyPressCounts()
{
    QFETCH(Qt::MouseButton, button);
    WyLabel label;
    QSignalSpy clicked(&label, &WyLabel::clicked);
    sendMouse(&label, QEvent::MouseButtonPress, button);
    QCOMPARE(clicked.count(), 1);
    sendMouse(&label, QEvent::MouseButtonPress, button);
    QCOMPARE(clicked.count(), 2);
}

void TestWyLabel::onlyPressesCount()
{
    WyLabel label;
    QSignalSpy clicked(&label, &WyLabel::clicked);
    sendMouse(&label, QEvent::MouseButtonRelease, Qt::LeftButton);
    sendMouse(&label, QEvent::MouseMove, Qt::LeftButton);
    QTest::keyClick(&label, Qt::Key_Space);
    QCOMPARE(clicked.count(), 0);
}

void TestWyLabel::theSecondPressOfADoubleClickCountsToo()
{
    WyLabel label;
    QSignalSpy clicked(&label, &WyLabel::clicked);
    sendMouse(&label, QEvent::MouseButtonPress, Qt::LeftButton);
    sendMouse(&label, QEvent::MouseButtonRelease, Qt::LeftButton);
    sendMouse(&label, QEvent::MouseButtonDblClick, Qt::LeftButton);
    QCOMPARE(clicked.count(), 2);
}

void TestWyLabel::signalsBeforeThePressGoesOn()
{
    WyLabel label;
    label.setText(QStringLiteral("words to select"));
    label.setTextInteractionFlags(Qt::TextSelectableByMouse);
    label.resize(label.sizeHint());
    label.setSelection(0, 1);
    bool wasSelected = false;
    connect(&label, &WyLabel::clicked, &label, [&] { wasSelected = label.hasSelectedText(); });
    sendMouse(&label, QEvent::MouseButtonPress, Qt::LeftButton, label.rect().center());
    QVERIFY(wasSelected);
    QVERIFY(!label.hasSelectedText()); // QLabel has had the press
}

void TestWyLabel::aPlainLabelLetsThePressThrough()
{
    WyLabel label;
    QVERIFY(!sendMouse(&label, QEvent::MouseButtonPress, Qt::LeftButton));
}

void TestWyLabel::theSlotDoesNothing()
{
    WyLabel label;
    label.setText(QStringLiteral("text"));
    QSignalSpy clicked(&label, &WyLabel::clicked);
    label.slotClicked();
    QVERIFY(QMetaObject::invokeMethod(&label, "slotClicked"));
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(label.text(), QStringLiteral("text"));
}

void TestWyLabel::mayBeDeletedWhenClicked()
{
    auto* label = new WyLabel;
    const QPointer<WyLabel> guard(label);
    connect(label, &WyLabel::clicked, [label] { delete label; });
    QTest::mousePress(label, Qt::LeftButton);
    QVERIFY(!guard);
}

QTEST_MAIN(TestWyLabel)
#include "tst_wylabel.moc"

#include "WyWidgets/wycontrol/WyShadowButton.h"

#include "support/Contract.h"

#include <QElapsedTimer>
#include <QGraphicsDropShadowEffect>
#include <QHBoxLayout>
#include <QPushButton>
#include <QtTest>

using WyWidgets::WyShadowButton;

namespace {

QPushButton* inner(const WyShadowButton& button)
{
    return button.findChild<QPushButton*>();
}

} // namespace

class TestWyShadowButton : public QObject
{
    Q_OBJECT

private slots:
    void registersItsSignal();
    void holdsOneButtonWithoutMargins();
    void alwaysHasTheSizeOfItsLayout();
    void castsTheShadowOfItsBase();
    void settersReachTheInnerButton();
    void aClickOnTheInnerButtonIsReportedOnce();
    void animateClickPressesForATenthOfASecond_data();
    void animateClickPressesForATenthOfASecond();
    void animateClickOnADisabledButtonDoesNothing();
    void buildingTheViewAgainChangesNothing();
    void connectingAgainReportsAClickOnce();
    void worksOnWithoutInnerButton();
    void aDeletedInnerButtonCanBeMadeAnew();
    void mayBeDeletedInItsSignal();
    void mayBeDeletedWhilePressed();
};

void TestWyShadowButton::registersItsSignal()
{
    WY_COMPARE_CONTRACT(WyShadowButton, {"SignalButtonClicked()"}, {}, {});
    QCOMPARE(WyShadowButton::staticMetaObject.superClass(), &WyWidgets::WyShadowWidget::staticMetaObject);
}

void TestWyShadowButton::holdsOneButtonWithoutMargins()
{
    QWidget parent;
    WyShadowButton button(&parent);
    QCOMPARE(button.parentWidget(), &parent);
    QVERIFY(button.testAttribute(Qt::WA_StyledBackground));
    QCOMPARE(button.findChildren<QPushButton*>().size(), 1);
    QCOMPARE(inner(button)->parentWidget(), &button);
    QVERIFY(inner(button)->testAttribute(Qt::WA_LayoutUsesWidgetRect));
    auto* layout = qobject_cast<QHBoxLayout*>(button.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->sizeConstraint(), QLayout::SetFixedSize);
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->itemAt(0)->widget(), inner(button));
}

void TestWyShadowButton::alwaysHasTheSizeOfItsLayout()
{
    QWidget window;
    auto* button = new WyShadowButton(&window);
    button->SetButtonText(QStringLiteral("Save"));
    button->SetButtonMinimumWidth(150);
    button->SetButtonFixedHeight(41);
    window.resize(400, 200);
    window.show();
    QCOMPARE(button->size(), QSize(150, 41));
    QCOMPARE(inner(*button)->geometry(), QRect(0, 0, 150, 41));
    button->SetButtonMinimumWidth(180);
    QTRY_COMPARE(button->size(), QSize(180, 41));
}

void TestWyShadowButton::castsTheShadowOfItsBase()
{
    WyShadowButton button;
    QVERIFY(!button.graphicsEffect());
    QVERIFY(button.setProperty("shadowColor", QColor(1, 2, 3, 4)));
    auto* effect = qobject_cast<QGraphicsDropShadowEffect*>(button.graphicsEffect());
    QVERIFY(effect);
    QCOMPARE(effect->color(), QColor(1, 2, 3, 4));
}

void TestWyShadowButton::settersReachTheInnerButton()
{
    WyShadowButton button;
    button.SetButtonObjectName(QStringLiteral("save_button"));
    button.SetButtonText(QStringLiteral("Save"));
    button.SetButtonMinimumWidth(77);
    button.SetButtonFixedHeight(33);
    QCOMPARE(inner(button)->objectName(), QStringLiteral("save_button"));
    QCOMPARE(inner(button)->text(), QStringLiteral("Save"));
    QCOMPARE(inner(button)->minimumWidth(), 77);
    QCOMPARE(inner(button)->minimumHeight(), 33);
    QCOMPARE(inner(button)->maximumHeight(), 33);
    QCOMPARE(inner(button)->maximumWidth(), QWIDGETSIZE_MAX);
    QCOMPARE(button.objectName(), QString());
}

void TestWyShadowButton::aClickOnTheInnerButtonIsReportedOnce()
{
    WyShadowButton button;
    QSignalSpy clicked(&button, &WyShadowButton::SignalButtonClicked);
    QTest::mouseClick(inner(button), Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
    QTest::keyClick(inner(button), Qt::Key_Space);
    QCOMPARE(clicked.count(), 2);
}

void TestWyShadowButton::animateClickPressesForATenthOfASecond_data()
{
    QTest::addColumn<int>("msec");
    QTest::newRow("longer") << 5000;
    QTest::newRow("shorter") << 1;
    QTest::newRow("negative") << -1;
}

void TestWyShadowButton::animateClickPressesForATenthOfASecond()
{
    QFETCH(int, msec);
    WyShadowButton button;
    QSignalSpy clicked(&button, &WyShadowButton::SignalButtonClicked);
    QElapsedTimer sincePress;
    qint64 clickedAfterMs = 0;
    connect(&button, &WyShadowButton::SignalButtonClicked, this,
            [&] { clickedAfterMs = sincePress.elapsed(); });
    sincePress.start();
    button.ButtonAnimateClick(msec);
    QVERIFY(inner(button)->isDown());
    QCOMPARE(clicked.count(), 0);
    QTRY_VERIFY_WITH_TIMEOUT(!inner(button)->isDown(), 4000);
    QVERIFY2(clickedAfterMs >= 90, qPrintable(QString::number(clickedAfterMs))); // timers may fire 5 % early
    QCOMPARE(clicked.count(), 1);
}

void TestWyShadowButton::animateClickOnADisabledButtonDoesNothing()
{
    WyShadowButton button;
    button.setEnabled(false);
    button.ButtonAnimateClick(100);
    QVERIFY(!inner(button)->isDown());
}

void TestWyShadowButton::buildingTheViewAgainChangesNothing()
{
    WyShadowButton button;
    const QObjectList children = button.children();
    button.InitView();
    QCOMPARE(button.children(), children);
    QCOMPARE(button.layout()->count(), 1);
}

void TestWyShadowButton::connectingAgainReportsAClickOnce()
{
    WyShadowButton button;
    button.InitConnect();
    button.InitConnect();
    QSignalSpy clicked(&button, &WyShadowButton::SignalButtonClicked);
    inner(button)->click();
    QCOMPARE(clicked.count(), 1);
}

void TestWyShadowButton::worksOnWithoutInnerButton()
{
    WyShadowButton button;
    delete inner(button);
    button.SetButtonObjectName(QStringLiteral("save_button"));
    button.SetButtonText(QStringLiteral("Save"));
    button.SetButtonMinimumWidth(77);
    button.SetButtonFixedHeight(33);
    button.ButtonAnimateClick(100);
    button.InitConnect();
    QVERIFY(!inner(button));
}

void TestWyShadowButton::aDeletedInnerButtonCanBeMadeAnew()
{
    WyShadowButton button;
    delete inner(button);
    button.InitView();
    button.InitConnect();
    QVERIFY(inner(button));
    QSignalSpy clicked(&button, &WyShadowButton::SignalButtonClicked);
    inner(button)->click();
    QCOMPARE(clicked.count(), 1);
    delete button.layout();
    delete inner(button);
    button.InitView();
    QCOMPARE(button.layout()->count(), 1);
}

void TestWyShadowButton::mayBeDeletedInItsSignal()
{
    QPointer<WyShadowButton> button = new WyShadowButton;
    connect(button, &WyShadowButton::SignalButtonClicked, this, [button] { delete button; });
    QTest::mouseClick(inner(*button), Qt::LeftButton);
    QVERIFY(!button);
}

void TestWyShadowButton::mayBeDeletedWhilePressed()
{
    auto* button = new WyShadowButton;
    WyShadowButton reference;
    QSignalSpy clicked(&reference, &WyShadowButton::SignalButtonClicked);
    button->ButtonAnimateClick(100);
    reference.ButtonAnimateClick(100);
    delete button;
    QTRY_COMPARE(clicked.count(), 1);
}

QTEST_MAIN(TestWyShadowButton)
#include "tst_wyshadowbutton.moc"

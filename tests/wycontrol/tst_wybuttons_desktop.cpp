#include "WyWidgets/wycontrol/WyAnimationButton.h"
#include "WyWidgets/wycontrol/WyHoverButton.h"
#include "WyWidgets/wycontrol/WyImageButton.h"
#include "WyWidgets/wycontrol/WyShadowButton.h"

#include "support/RealInput.h"
#include "support/RoomyWindow.h"

#include <QLabel>
#include <QtTest>

using namespace WyWidgets;
using namespace WyTest;

/// The buttons under the real pointer.
class TestWyButtonsDesktop : public QObject
{
    Q_OBJECT

private slots:
    void theRealPointerEntersAndLeaves();
    void aHoverButtonMayBeDeletedLaterOnEntering();
    void aRealClickOnTheIconClicksTheButton();
    void aRealClickOnAShadowButtonIsReported();
    void aCountingButtonCannotBeClicked();
};

void TestWyButtonsDesktop::theRealPointerEntersAndLeaves()
{
    auto* button = new WyHoverButton;
    RoomyWindow window(button);
    RealInput::movePointer(QPoint(5, 5));
    QVERIFY(RealInput::showAndActivate(&window));
    QSignalSpy entered(button, &WyHoverButton::SignalEnterEvent);
    QSignalSpy left(button, &WyHoverButton::SignalLeaveEvent);
    for (int round = 1; round <= 2; ++round) {
        RealInput::movePointer(centreOf(button));
        QTRY_COMPARE_WITH_TIMEOUT(entered.count(), round, 10000);
        QCOMPARE(left.count(), round - 1);
        QVERIFY(button->underMouse());
        RealInput::movePointer(window.besideTheControl());
        QTRY_COMPARE_WITH_TIMEOUT(left.count(), round, 10000);
    }
    QCOMPARE(entered.count(), 2);
}

void TestWyButtonsDesktop::aHoverButtonMayBeDeletedLaterOnEntering()
{
    QPointer<WyHoverButton> button = new WyHoverButton;
    RoomyWindow window(button);
    RealInput::movePointer(QPoint(5, 5));
    QVERIFY(RealInput::showAndActivate(&window));
    connect(button, &WyHoverButton::SignalEnterEvent, button, &QObject::deleteLater);
    RealInput::movePointer(centreOf(button));
    QTRY_VERIFY_WITH_TIMEOUT(!button, 10000);
    RealInput::movePointer(window.besideTheControl());
}

void TestWyButtonsDesktop::aRealClickOnTheIconClicksTheButton()
{
    auto* button = new WyImageButton(QStringLiteral("Open"));
    RoomyWindow window(button);
    QVERIFY(RealInput::showAndActivate(&window));
    QSignalSpy clicked(button, &QPushButton::clicked);
    RealInput::click(centreOf(button->findChild<QLabel*>()));
    QTRY_COMPARE_WITH_TIMEOUT(clicked.count(), 1, 10000);
}

void TestWyButtonsDesktop::aRealClickOnAShadowButtonIsReported()
{
    auto* button = new WyShadowButton;
    button->setShadowColor(QColor(0, 0, 0, 160));
    button->SetButtonText(QStringLiteral("Save"));
    RoomyWindow window(button);
    QVERIFY(RealInput::showAndActivate(&window));
    QSignalSpy clicked(button, &WyShadowButton::SignalButtonClicked);
    RealInput::click(centreOf(button));
    QTRY_COMPARE_WITH_TIMEOUT(clicked.count(), 1, 10000);
}

void TestWyButtonsDesktop::aCountingButtonCannotBeClicked()
{
    auto* button = new WyAnimationButton;
    button->SetAnimationSecond(QStringLiteral("Resend"), 3);
    RoomyWindow window(button);
    QVERIFY(RealInput::showAndActivate(&window));
    QSignalSpy clicked(button, &QPushButton::clicked);
    connect(button, &QPushButton::clicked, button, &WyAnimationButton::StartAnimation);
    RealInput::click(centreOf(button));
    QTRY_COMPARE_WITH_TIMEOUT(clicked.count(), 1, 10000);
    QVERIFY(!button->isEnabled());
    RealInput::click(centreOf(button));
    QTRY_VERIFY_WITH_TIMEOUT(button->isEnabled(), 10000);
    QCOMPARE(clicked.count(), 1);
}

QTEST_MAIN(TestWyButtonsDesktop)
#include "tst_wybuttons_desktop.moc"

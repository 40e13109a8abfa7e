#include "WyWidgets/wycontrol/WyCheckBox.h"
#include "WyWidgets/wycontrol/WyDotButton.h"
#include "WyWidgets/wycontrol/WyDotCheckBox.h"
#include "WyWidgets/wycontrol/WyElidedLabel.h"
#include "WyWidgets/wycontrol/WyLabel.h"
#include "WyWidgets/wycontrol/WyMenu.h"

#include "support/RealInput.h"
#include "support/RoomyWindow.h"

#include <QtTest>

using namespace WyWidgets;
using namespace WyTest;

namespace {

constexpr int kPatienceMs = 10000;

} // namespace

/// Labels, dots, check boxes and the menu under the real pointer.
class TestWyLabelsDesktop : public QObject
{
    Q_OBJECT

private slots:
    void everyRealPressOnALabelCounts();
    void aLabelMayBeDeletedByAClick();
    void aStyleSheetSelectsTheHoveredLabel();
    void aClickOnTheDotClicksTheControl();
    void aClickOnAWrappedLineChecksTheBox();
    void aNarrowerWindowWrapsTheBox();
    void aNarrowerWindowCutsTheLabel();
    void aMenuEntryIsChosen();
};

void TestWyLabelsDesktop::everyRealPressOnALabelCounts()
{
    auto* label = new WyLabel;
    label->setText(QStringLiteral("What is new?"));
    RoomyWindow window(label);
    QVERIFY(RealInput::showAndActivate(&window));
    QSignalSpy clicked(label, &WyLabel::clicked);
    int presses = 0;
    for (Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        RealInput::click(centreOf(label), button);
        ++presses;
        QTRY_COMPARE_WITH_TIMEOUT(clicked.count(), presses, kPatienceMs);
    }
}

void TestWyLabelsDesktop::aLabelMayBeDeletedByAClick()
{
    QPointer<WyLabel> label = new WyLabel;
    label->setText(QStringLiteral("Not now"));
    RoomyWindow window(label);
    QVERIFY(RealInput::showAndActivate(&window));
    connect(label, &WyLabel::clicked, this, [label] { delete label; });
    RealInput::click(centreOf(label));
    QTRY_VERIFY_WITH_TIMEOUT(!label, kPatienceMs);
    QVERIFY(RealInput::hover(window.besideTheControl()));
}

void TestWyLabelsDesktop::aStyleSheetSelectsTheHoveredLabel()
{
    auto* label = new WyLabel;
    RoomyWindow window(label);
    window.setStyleSheet(QStringLiteral("WyWidgets--WyLabel { background: #101010; }"
                                        "WyWidgets--WyLabel:hover { background: #2040ff; }"));
    window.resize(300, 200);
    QVERIFY(RealInput::showAndActivate(&window));
    const auto color = [label] {
        return label->grab().toImage().pixelColor(5, 5);
    };
    QVERIFY(RealInput::hover(window.besideTheControl()));
    QTRY_COMPARE_WITH_TIMEOUT(color(), QColor(0x10, 0x10, 0x10), kPatienceMs);
    QVERIFY(RealInput::hover(centreOf(label)));
    QTRY_COMPARE_WITH_TIMEOUT(color(), QColor(0x20, 0x40, 0xff), kPatienceMs);
    QVERIFY(RealInput::hover(window.besideTheControl()));
    QTRY_COMPARE_WITH_TIMEOUT(color(), QColor(0x10, 0x10, 0x10), kPatienceMs);
}

void TestWyLabelsDesktop::aClickOnTheDotClicksTheControl()
{
    auto* button = new WyDotButton;
    button->setText(QStringLiteral("Messages"));
    RoomyWindow window(button);
    auto* check = new WyDotCheckBox;
    check->setText(QStringLiteral("Beta features"));
    window.layout()->addWidget(check);
    QVERIFY(RealInput::showAndActivate(&window));
    QSignalSpy clicked(button, &QPushButton::clicked);
    RealInput::click(centreOf(button->findChild<QLabel*>()));
    QTRY_COMPARE_WITH_TIMEOUT(clicked.count(), 1, kPatienceMs);
    RealInput::click(check->mapToGlobal(QPoint(8, check->height() / 2)));
    QTRY_VERIFY_WITH_TIMEOUT(check->isChecked(), kPatienceMs);
}

void TestWyLabelsDesktop::aClickOnAWrappedLineChecksTheBox()
{
    auto* box = new WyCheckBox(QStringLiteral("Send me a mail when somebody answers"));
    box->setFixedWidth(140);
    RoomyWindow window(box);
    QVERIFY(RealInput::showAndActivate(&window));
    QTRY_VERIFY_WITH_TIMEOUT(box->text().contains(QLatin1Char('\n')), kPatienceMs);
    RealInput::click(box->mapToGlobal(QPoint(40, box->height() - 6)));
    QTRY_VERIFY_WITH_TIMEOUT(box->isChecked(), kPatienceMs);
    RealInput::tapKey("space"); // the click gave it the focus
    QTRY_VERIFY_WITH_TIMEOUT(!box->isChecked(), kPatienceMs);
}

void TestWyLabelsDesktop::aNarrowerWindowWrapsTheBox()
{
    const QString text = QStringLiteral("Send me a mail when somebody answers");
    auto* box = new WyCheckBox(text);
    RoomyWindow window(box);
    window.resize(700, 200);
    QVERIFY(RealInput::showAndActivate(&window));
    QTRY_COMPARE_WITH_TIMEOUT(box->text(), text, kPatienceMs);
    const int lineHeight = box->sizeHint().height();
    window.resize(250, 200);
    QTRY_VERIFY_WITH_TIMEOUT(box->text().contains(QLatin1Char('\n')), kPatienceMs);
    QTRY_VERIFY_WITH_TIMEOUT(box->sizeHint().height() > lineHeight, kPatienceMs);
    window.resize(700, 200);
    QTRY_COMPARE_WITH_TIMEOUT(box->text(), text, kPatienceMs);
}

void TestWyLabelsDesktop::aNarrowerWindowCutsTheLabel()
{
    auto* label = new WyElidedLabel(QString(200, QLatin1Char('W')));
    RoomyWindow window(label);
    window.resize(700, 160);
    QVERIFY(RealInput::showAndActivate(&window));
    window.resize(200, 160);
    QTRY_COMPARE_WITH_TIMEOUT(window.width(), 200, kPatienceMs);
    QTRY_COMPARE_WITH_TIMEOUT(label->width(), 40, kPatienceMs);
}

void TestWyLabelsDesktop::aMenuEntryIsChosen()
{
    auto* label = new WyLabel;
    label->setText(QStringLiteral("Account"));
    RoomyWindow window(label);
    WyMenu menu(&window);
    QAction* action = menu.addAction(QStringLiteral("Sign out"));
    connect(label, &WyLabel::clicked, &menu, [&] { menu.popup(centreOf(label)); });
    QVERIFY(RealInput::showAndActivate(&window));
    QSignalSpy triggered(action, &QAction::triggered);
    RealInput::click(centreOf(label));
    QTRY_VERIFY_WITH_TIMEOUT(menu.isVisible(), kPatienceMs);
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    const QPoint entry = menu.mapToGlobal(menu.actionGeometry(action).center());
    QVERIFY(RealInput::hover(entry));
    RealInput::click(entry);
    QTRY_COMPARE_WITH_TIMEOUT(triggered.count(), 1, kPatienceMs);
    QTRY_VERIFY_WITH_TIMEOUT(!menu.isVisible(), kPatienceMs);
}

QTEST_MAIN(TestWyLabelsDesktop)
#include "tst_wylabels_desktop.moc"

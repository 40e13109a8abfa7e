#include "WyWidgets/wycontrol/WyPasswordEdit.h"

#include "support/Contract.h"

#include <QtTest>

using WyWidgets::WyPasswordEdit;

namespace {

QList<QPushButton*> switches(const QWidget& edit)
{
    return edit.findChildren<QPushButton*>(QStringLiteral("edit_psw_switch"), Qt::FindDirectChildrenOnly);
}

QPushButton* passwordSwitch(const QWidget& edit)
{
    return switches(edit).value(0);
}

int cursorX(QLineEdit& edit)
{
    edit.grab(); // painting scrolls
    return edit.inputMethodQuery(Qt::ImCursorRectangle).toRect().center().x();
}

} // namespace

class TestWyPasswordEdit : public QObject
{
    Q_OBJECT

private slots:
    void registersNothing();
    void isAMaskedEditOfItsParent();
    void hasOneVisibleUncheckedSwitch();
    void laysTheSwitchOutAtTheRightEnd();
    void theSwitchStandsVerticallyCentred();
    void checkingShowsThePassword();
    void anyTogglingCounts();
    void theSwitchTakesNoFocus();
    void textKeepsClearOfTheSwitch();
    void textKeepsClearOfTheSwitchRightToLeft();
    void theSwitchTellsWhatItDoes();
    void wordsOfTheHostsStay();
    void aStyleSheetSelectsTheState();
    void buildingTwiceAddsNothing();
    void buildingTwiceConnectsOnce();
    void survivesItsSwitch();
    void leavesAForeignLayoutAlone();
    void mayBeDeletedByTheSwitch();
};

void TestWyPasswordEdit::registersNothing()
{
    WY_COMPARE_CONTRACT(WyPasswordEdit, {}, {}, {});
    QCOMPARE(WyPasswordEdit::staticMetaObject.superClass(), &QLineEdit::staticMetaObject);
}

void TestWyPasswordEdit::isAMaskedEditOfItsParent()
{
    QWidget parent;
    auto* edit = new WyPasswordEdit(&parent);
    QCOMPARE(edit->parentWidget(), &parent);
    QCOMPARE(edit->echoMode(), QLineEdit::Password);
}

void TestWyPasswordEdit::hasOneVisibleUncheckedSwitch()
{
    WyPasswordEdit edit;
    edit.show();
    QCOMPARE(switches(edit).size(), 1);
    const QPushButton* button = passwordSwitch(edit);
    QVERIFY(button->isVisible());
    QVERIFY(button->isCheckable());
    QVERIFY(!button->isChecked());
    QCOMPARE(button->minimumSize(), QSize(16, 16));
    QCOMPARE(button->maximumSize(), QSize(16, 16));
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    QCOMPARE(button->cursor().shape(), Qt::PointingHandCursor);
}

void TestWyPasswordEdit::laysTheSwitchOutAtTheRightEnd()
{
    const WyPasswordEdit edit;
    auto* layout = qobject_cast<QHBoxLayout*>(edit.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(12, 0, 12, 0));
    QCOMPARE(layout->count(), 2);
    QVERIFY(layout->itemAt(0)->spacerItem());
    QCOMPARE(layout->itemAt(1)->widget(), passwordSwitch(edit));
}

void TestWyPasswordEdit::theSwitchStandsVerticallyCentred()
{
    WyPasswordEdit edit;
    edit.resize(200, 40);
    edit.show();
    QCOMPARE(passwordSwitch(edit)->geometry(), QRect(200 - 12 - 16, 12, 16, 16));
}

void TestWyPasswordEdit::checkingShowsThePassword()
{
    WyPasswordEdit edit;
    edit.show();
    edit.setText(QStringLiteral("secret"));
    QVERIFY(edit.displayText() != QStringLiteral("secret"));
    QTest::mouseClick(passwordSwitch(edit), Qt::LeftButton);
    QCOMPARE(edit.echoMode(), QLineEdit::Normal);
    QCOMPARE(edit.displayText(), QStringLiteral("secret"));
    QTest::mouseClick(passwordSwitch(edit), Qt::LeftButton);
    QCOMPARE(edit.echoMode(), QLineEdit::Password);
    QVERIFY(edit.displayText() != QStringLiteral("secret"));
    QCOMPARE(edit.text(), QStringLiteral("secret"));
}

void TestWyPasswordEdit::anyTogglingCounts()
{
    WyPasswordEdit edit;
    passwordSwitch(edit)->setChecked(true); // no click
    QCOMPARE(edit.echoMode(), QLineEdit::Normal);
    passwordSwitch(edit)->setChecked(false);
    QCOMPARE(edit.echoMode(), QLineEdit::Password);
}

void TestWyPasswordEdit::theSwitchTakesNoFocus()
{
    WyPasswordEdit edit;
    edit.show();
    edit.activateWindow();
    edit.setFocus();
    QTRY_VERIFY(edit.hasFocus());
    QTest::mouseClick(passwordSwitch(edit), Qt::LeftButton);
    QVERIFY(edit.hasFocus());
    QTest::keyClick(&edit, Qt::Key_Tab);
    QVERIFY(!passwordSwitch(edit)->hasFocus());
}

void TestWyPasswordEdit::textKeepsClearOfTheSwitch()
{
    WyPasswordEdit edit;
    edit.resize(200, 30);
    edit.show();
    edit.setText(QString(80, QLatin1Char('x')));
    for (bool inClear : {false, true}) {
        passwordSwitch(edit)->setChecked(inClear);
        edit.end(false);
        QVERIFY(cursorX(edit) > 100);
        QVERIFY(cursorX(edit) <= passwordSwitch(edit)->x());
    }
    QCOMPARE(edit.textMargins(), QMargins(0, 0, 16 + 12, 0));
}

void TestWyPasswordEdit::textKeepsClearOfTheSwitchRightToLeft()
{
    WyPasswordEdit edit;
    edit.setLayoutDirection(Qt::RightToLeft);
    edit.resize(200, 30);
    edit.show();
    QCOMPARE(passwordSwitch(edit)->x(), 12);
    QCOMPARE(edit.textMargins(), QMargins(16 + 12, 0, 0, 0));
    passwordSwitch(edit)->setChecked(true);
    edit.setText(QStringLiteral("שלום ").repeated(20));
    QVERIFY(cursorX(edit) < 100);
    QVERIFY(cursorX(edit) > passwordSwitch(edit)->geometry().right());
}

void TestWyPasswordEdit::theSwitchTellsWhatItDoes()
{
    WyPasswordEdit edit;
    QPushButton* button = passwordSwitch(edit);
    QCOMPARE(button->accessibleName(), QStringLiteral("Show password"));
    QCOMPARE(button->toolTip(), QStringLiteral("Show password"));
    button->setChecked(true);
    QCOMPARE(button->accessibleName(), QStringLiteral("Show password")); // and its state says that it does
    QCOMPARE(button->toolTip(), QStringLiteral("Hide password"));
    button->setChecked(false);
    QCOMPARE(button->toolTip(), QStringLiteral("Show password"));
}

void TestWyPasswordEdit::wordsOfTheHostsStay()
{
    WyPasswordEdit edit;
    QPushButton* button = passwordSwitch(edit);
    button->setAccessibleName(QStringLiteral("Show PIN"));
    button->setToolTip(QStringLiteral("Shows or hides the PIN"));
    button->setChecked(true);
    edit.InitView();
    QCOMPARE(button->accessibleName(), QStringLiteral("Show PIN"));
    QCOMPARE(button->toolTip(), QStringLiteral("Shows or hides the PIN"));
}

void TestWyPasswordEdit::aStyleSheetSelectsTheState()
{
    WyPasswordEdit edit;
    edit.setStyleSheet(QStringLiteral("#edit_psw_switch { border: none; background: #102030; }"
                                      "#edit_psw_switch:checked { background: #405060; }"));
    edit.resize(200, 40);
    edit.show();
    QPushButton* button = passwordSwitch(edit);
    const auto middle = [button] {
        const QImage picture = button->grab().toImage();
        return picture.pixelColor(picture.width() / 2, picture.height() / 2);
    };
    QCOMPARE(middle(), QColor(0x10, 0x20, 0x30));
    button->setChecked(true);
    QCOMPARE(middle(), QColor(0x40, 0x50, 0x60));
}

void TestWyPasswordEdit::buildingTwiceAddsNothing()
{
    WyPasswordEdit edit;
    edit.show();
    passwordSwitch(edit)->setChecked(true);
    const QObjectList children = edit.children();
    edit.InitView();
    QCOMPARE(edit.children(), children);
    QCOMPARE(edit.layout()->count(), 2);
    QVERIFY(passwordSwitch(edit)->isChecked());
    QCOMPARE(edit.echoMode(), QLineEdit::Normal);
    QCOMPARE(edit.textMargins(), QMargins(0, 0, 28, 0));
}

void TestWyPasswordEdit::buildingTwiceConnectsOnce()
{
    WyPasswordEdit edit;
    struct Button : QPushButton
    {
        using QObject::receivers;
    };
    const auto receivers = [&edit] {
        return (passwordSwitch(edit)->*&Button::receivers)(SIGNAL(toggled(bool)));
    };
    QCOMPARE(receivers(), 1);
    edit.InitView();
    edit.InitView();
    QCOMPARE(receivers(), 1);
}

void TestWyPasswordEdit::survivesItsSwitch()
{
    WyPasswordEdit edit;
    edit.show();
    passwordSwitch(edit)->setChecked(true);
    delete passwordSwitch(edit);
    edit.setText(QStringLiteral("secret"));
    edit.InitView();
    QCOMPARE(switches(edit).size(), 1);
    QCOMPARE(edit.echoMode(), QLineEdit::Password); // the new switch is not checked
    QTRY_VERIFY(passwordSwitch(edit)->isVisible());
    passwordSwitch(edit)->setChecked(true);
    QCOMPARE(edit.echoMode(), QLineEdit::Normal);
}

void TestWyPasswordEdit::leavesAForeignLayoutAlone()
{
    WyPasswordEdit edit;
    delete passwordSwitch(edit);
    delete edit.layout();
    auto* grid = new QGridLayout(&edit);
    edit.InitView();
    QCOMPARE(edit.layout(), grid);
    QVERIFY(switches(edit).isEmpty());
    QCOMPARE(edit.echoMode(), QLineEdit::Password);
}

void TestWyPasswordEdit::mayBeDeletedByTheSwitch()
{
    auto* edit = new WyPasswordEdit;
    const QPointer<WyPasswordEdit> guard(edit);
    edit->show();
    connect(passwordSwitch(*edit), &QPushButton::clicked, [edit] { delete edit; });
    QTest::mouseClick(passwordSwitch(*edit), Qt::LeftButton);
    QVERIFY(!guard);
}

QTEST_MAIN(TestWyPasswordEdit)
#include "tst_wypasswordedit.moc"

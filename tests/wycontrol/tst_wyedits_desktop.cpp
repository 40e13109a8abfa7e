#include "WyWidgets/wycontrol/WyClearEdit.h"
#include "WyWidgets/wycontrol/WyIntValidator.h"
#include "WyWidgets/wycontrol/WyPasswordEdit.h"
#include "WyWidgets/wycontrol/WyShortcutEdit.h"

#include "support/RealInput.h"
#include "support/RoomyWindow.h"

#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

using namespace WyWidgets;
using namespace WyTest;

namespace {

constexpr int kPatienceMs = 10000;

QPushButton* buttonOf(const QLineEdit& edit)
{
    return edit.findChild<QPushButton*>();
}

QString native(const QKeySequence& sequence)
{
    return sequence.toString(QKeySequence::NativeText);
}

/// An edit of the given kind in an active window, clicked with the real pointer so that it has the focus;
/// null if that fails. The pointer stands on its left end.
template <typename Edit>
class ActiveEdit
{
public:
    ActiveEdit()
    {
        edit = new Edit(&m_window);
        edit->setFixedWidth(240);
        auto* column = new QVBoxLayout(&m_window);
        column->addWidget(&m_other); // which has the focus at first
        column->addWidget(edit);
    }
    bool activate()
    {
        if (!RealInput::showAndActivate(&m_window))
            return false;
        return QTest::qWaitFor([this] {
            RealInput::click(edit->mapToGlobal(QPoint(12, edit->height() / 2)));
            return edit->hasFocus();
        });
    }

    Edit* edit;

private:
    QWidget m_window;
    QLineEdit m_other;
};

void type(const QByteArray& letters)
{
    for (const char letter : letters)
        RealInput::tapKey(QByteArray(1, letter).constData());
}

} // namespace

/// The edits under real keys and clicks.
class TestWyEditsDesktop : public QObject
{
    Q_OBJECT

private slots:
    void typingShowsTheClearButtonAndAClickEmptiesTheEdit();
    void aClickOnTheSwitchShowsAndHidesThePassword();
    void realKeysRecordAShortcut();
    void shiftWithADigitRecordsTheSymbol();
    void keypadKeysAreNotRecorded();
    void noKeyGetsPastTheValidator();
};

void TestWyEditsDesktop::typingShowsTheClearButtonAndAClickEmptiesTheEdit()
{
    ActiveEdit<WyClearEdit> active;
    QVERIFY(active.activate());
    WyClearEdit* edit = active.edit;
    RealInput::tapKey("space");
    QTRY_COMPARE_WITH_TIMEOUT(edit->text(), QStringLiteral(" "), kPatienceMs);
    QVERIFY(!buttonOf(*edit)->isVisible());
    type("ab");
    QTRY_COMPARE_WITH_TIMEOUT(edit->text(), QStringLiteral(" ab"), kPatienceMs);
    QVERIFY(buttonOf(*edit)->isVisible());
    QVERIFY(RealInput::hover(centreOf(buttonOf(*edit))));
    QTRY_COMPARE_WITH_TIMEOUT(buttonOf(*edit)->underMouse(), true, kPatienceMs);
    RealInput::click(centreOf(buttonOf(*edit)));
    QTRY_COMPARE_WITH_TIMEOUT(edit->text(), QString(), kPatienceMs);
    QVERIFY(!buttonOf(*edit)->isVisible());
    QVERIFY(edit->hasFocus());
    RealInput::key("Control_L", true);
    RealInput::tapKey("z");
    RealInput::key("Control_L", false);
    QTRY_COMPARE_WITH_TIMEOUT(edit->text(), QStringLiteral(" ab"), kPatienceMs);
}

void TestWyEditsDesktop::aClickOnTheSwitchShowsAndHidesThePassword()
{
    ActiveEdit<WyPasswordEdit> active;
    QVERIFY(active.activate());
    WyPasswordEdit* edit = active.edit;
    type("abc");
    QTRY_COMPARE_WITH_TIMEOUT(edit->text(), QStringLiteral("abc"), kPatienceMs);
    QVERIFY(edit->displayText() != QLatin1String("abc"));
    RealInput::click(centreOf(buttonOf(*edit)));
    QTRY_COMPARE_WITH_TIMEOUT(edit->displayText(), QStringLiteral("abc"), kPatienceMs);
    QVERIFY(edit->hasFocus());
    type("d");
    QTRY_COMPARE_WITH_TIMEOUT(edit->displayText(), QStringLiteral("abcd"), kPatienceMs);
    RealInput::click(centreOf(buttonOf(*edit)));
    QTRY_COMPARE_WITH_TIMEOUT(edit->echoMode(), QLineEdit::Password, kPatienceMs);
    QCOMPARE(edit->text(), QStringLiteral("abcd"));
    QVERIFY(edit->displayText() != QLatin1String("abcd"));
}

void TestWyEditsDesktop::realKeysRecordAShortcut()
{
    ActiveEdit<WyShortcutEdit> active;
    active.edit->setReadOnly(true);
    QVERIFY(active.activate());
    const WyShortcutEdit* edit = active.edit;
    const QString ctrl = native(QKeySequence(int(Qt::CTRL)));
    const QString ctrlS = native(QKeySequence(Qt::CTRL | Qt::Key_S));

    // The window system tells the modifiers from before the key, so Ctrl itself is not among them yet.
    RealInput::key("Control_L", true);
    QTest::qWait(0);
    RealInput::key("s", true);
    QTRY_COMPARE_WITH_TIMEOUT(edit->text(), ctrlS, kPatienceMs);
    QCOMPARE(edit->portableText(), QString());
    RealInput::key("s", false);
    QTRY_COMPARE_WITH_TIMEOUT(edit->portableText(), ctrlS, kPatienceMs);
    RealInput::key("Shift_L", true);
    QTRY_VERIFY_WITH_TIMEOUT(edit->text().startsWith(ctrl) && edit->text() != ctrlS, kPatienceMs);
    RealInput::key("Shift_L", false);
    QTRY_COMPARE_WITH_TIMEOUT(edit->text(), ctrlS, kPatienceMs);
    RealInput::key("Control_L", false);
    QTRY_COMPARE_WITH_TIMEOUT(edit->text(), ctrlS, kPatienceMs);
    QCOMPARE(edit->portableText(), ctrlS);
}

void TestWyEditsDesktop::shiftWithADigitRecordsTheSymbol()
{
    ActiveEdit<WyShortcutEdit> active;
    active.edit->setReadOnly(true);
    QVERIFY(active.activate());
    RealInput::key("Shift_L", true);
    RealInput::tapKey("1"); // the US layout has the exclamation mark there
    RealInput::key("Shift_L", false);
    QTRY_COMPARE_WITH_TIMEOUT(active.edit->portableText(), QStringLiteral("!"), kPatienceMs);
    QTRY_COMPARE_WITH_TIMEOUT(active.edit->text(), QStringLiteral("!"), kPatienceMs);
}

void TestWyEditsDesktop::keypadKeysAreNotRecorded()
{
    ActiveEdit<WyShortcutEdit> active;
    active.edit->setReadOnly(true);
    QVERIFY(active.activate());
    active.edit->SetKeySequence(QKeySequence(Qt::Key_F5));
    RealInput::key("KP_Add", true);
    QTRY_COMPARE_WITH_TIMEOUT(active.edit->text(), QString(), kPatienceMs);
    RealInput::key("KP_Add", false);
    QTRY_COMPARE_WITH_TIMEOUT(active.edit->text(), native(QKeySequence(Qt::Key_F5)), kPatienceMs);
}

void TestWyEditsDesktop::noKeyGetsPastTheValidator()
{
    ActiveEdit<QLineEdit> active;
    active.edit->setValidator(new WyIntValidator(1, 12, active.edit));
    QVERIFY(active.activate());
    type("x0123");
    QTRY_COMPARE_WITH_TIMEOUT(active.edit->text(), QStringLiteral("12"), kPatienceMs);
    QVERIFY(active.edit->hasAcceptableInput());
}

QTEST_MAIN(TestWyEditsDesktop)
#include "tst_wyedits_desktop.moc"

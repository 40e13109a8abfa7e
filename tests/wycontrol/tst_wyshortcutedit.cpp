#include "WyWidgets/wycontrol/WyShortcutEdit.h"

#include "support/Contract.h"

#include <QtTest>

using WyWidgets::isOnlyContainsModifiers;
using WyWidgets::WyShortcutEdit;

namespace {

QString native(const QKeySequence& sequence)
{
    return sequence.toString(QKeySequence::NativeText);
}

/// Sends the event as it comes from a device; false if the edit has passed it on.
bool send(WyShortcutEdit& edit, QEvent::Type type, int key, Qt::KeyboardModifiers modifiers,
          const QString& text = QString())
{
    QKeyEvent event(type, key, modifiers, text);
    QCoreApplication::sendEvent(&edit, &event);
    return event.isAccepted();
}

bool press(WyShortcutEdit& edit, int key, Qt::KeyboardModifiers modifiers, const QString& text = QString())
{
    return send(edit, QEvent::KeyPress, key, modifiers, text);
}

bool release(WyShortcutEdit& edit, int key, Qt::KeyboardModifiers modifiers)
{
    return send(edit, QEvent::KeyRelease, key, modifiers);
}

/// As hosts use it: what is pressed is recorded and not typed.
class ReadOnlyEdit : public WyShortcutEdit
{
public:
    ReadOnlyEdit() { setReadOnly(true); }
};

/// Counts what arrives behind the edit's own handling, for QLineEdit passes on what it has no use for.
class PassedOn : public QWidget
{
public:
    int presses = 0;
    int releases = 0;

protected:
    void keyPressEvent(QKeyEvent*) override { ++presses; }
    void keyReleaseEvent(QKeyEvent*) override { ++releases; }
};

} // namespace

Q_DECLARE_METATYPE(QKeySequence)
Q_DECLARE_METATYPE(Qt::KeyboardModifiers)

class TestWyShortcutEdit : public QObject
{
    Q_OBJECT

private slots:
    void registersNothing();
    void isAPlainEditOfItsParent();
    void showsTheSequenceThatIsSet();
    void tellsTheNativeText();
    void modifiersAreShownWhileHeld_data();
    void modifiersAreShownWhileHeld();
    void ignoredKeysLeaveTheText_data();
    void ignoredKeysLeaveTheText();
    void keysAreShownInNativeText_data();
    void keysAreShownInNativeText();
    void keypadKeysEmptyTheText_data();
    void keypadKeysEmptyTheText();
    void shiftWithoutAnyCandidateChangesNothing();
    void pressesGoOnToTheEdit();
    void releasesGoOnPastTheEdit();
    void anEditableEditTypesToo();
    void recordsOnRelease();
    void bareModifiersBringTheShortcutBack();
    void aKeypadKeyBringsTheShortcutBack();
    void releasingDoesNotRewriteTheText();
    void textThatIsNoShortcut_data();
    void textThatIsNoShortcut();
    void emptySequenceEmptiesTheEdit();
    void severalKeysAreKept();
    void onlyModifiers_data();
    void onlyModifiers();
    void mayBeDeletedBehindAPress();
};

void TestWyShortcutEdit::registersNothing()
{
    WY_COMPARE_CONTRACT(WyShortcutEdit, {}, {}, {});
    QCOMPARE(WyShortcutEdit::staticMetaObject.superClass(), &QLineEdit::staticMetaObject);
}

void TestWyShortcutEdit::isAPlainEditOfItsParent()
{
    QWidget parent;
    auto* edit = new WyShortcutEdit(&parent);
    QCOMPARE(edit->parentWidget(), &parent);
    QCOMPARE(edit->text(), QString());
    QCOMPARE(edit->portableText(), QString());
    QVERIFY(!edit->isReadOnly());
    QVERIFY(!edit->layout());
}

void TestWyShortcutEdit::showsTheSequenceThatIsSet()
{
    WyShortcutEdit edit;
    edit.SetKeySequence(QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_F5));
    QCOMPARE(edit.text(), native(QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_F5)));
    QCOMPARE(edit.portableText(), edit.text());
}

void TestWyShortcutEdit::tellsTheNativeText()
{
    // A language in which the native text differs from the portable one on every system.
    class German : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char* context, const char* source, const char*, int) const override
        {
            const bool isCtrl = qstrcmp(context, "QShortcut") == 0 && qstrcmp(source, "Ctrl") == 0;
            return isCtrl ? QStringLiteral("Strg") : QString();
        }
    } german;
    const QKeySequence sequence(Qt::CTRL + Qt::Key_S);
    WyShortcutEdit edit;
    edit.SetKeySequence(sequence);
    QVERIFY(QCoreApplication::installTranslator(&german));
    QCOMPARE(edit.portableText(), native(sequence));
    const bool isTranslated = edit.portableText() != sequence.toString(QKeySequence::PortableText);
    QVERIFY(QCoreApplication::removeTranslator(&german));
    QVERIFY(isTranslated);
}

void TestWyShortcutEdit::modifiersAreShownWhileHeld_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("before");
    QTest::addColumn<int>("shown");
    const Qt::KeyboardModifiers none;
    // The modifiers of a press of a modifier key are those after it.
    QTest::newRow("Shift") << int(Qt::Key_Shift) << none << int(Qt::SHIFT);
    QTest::newRow("Control") << int(Qt::Key_Control) << none << int(Qt::CTRL);
    QTest::newRow("Alt") << int(Qt::Key_Alt) << none << int(Qt::ALT);
    QTest::newRow("Shift, then Control")
        << int(Qt::Key_Control) << Qt::KeyboardModifiers(Qt::ShiftModifier) << int(Qt::SHIFT | Qt::CTRL);
    QTest::newRow("all") << int(Qt::Key_Alt) << (Qt::ShiftModifier | Qt::ControlModifier | Qt::MetaModifier)
                         << int(Qt::SHIFT | Qt::CTRL | Qt::META | Qt::ALT);
}

void TestWyShortcutEdit::modifiersAreShownWhileHeld()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, before);
    QFETCH(int, shown);
    ReadOnlyEdit edit;
    edit.setText(QStringLiteral("F1"));
    press(edit, key, before);
    QCOMPARE(edit.text(), native(QKeySequence(shown)));
    QVERIFY(!edit.text().isEmpty());
    QCOMPARE(edit.portableText(), QString());
}

void TestWyShortcutEdit::ignoredKeysLeaveTheText_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Meta") << int(Qt::Key_Meta);
    QTest::newRow("CapsLock") << int(Qt::Key_CapsLock);
    QTest::newRow("Menu") << int(Qt::Key_Menu);
    QTest::newRow("VolumeDown") << int(Qt::Key_VolumeDown);
    QTest::newRow("VolumeMute") << int(Qt::Key_VolumeMute);
    QTest::newRow("VolumeUp") << int(Qt::Key_VolumeUp);
    QTest::newRow("unknown") << int(Qt::Key_unknown);
}

void TestWyShortcutEdit::ignoredKeysLeaveTheText()
{
    QFETCH(int, key);
    for (Qt::KeyboardModifiers modifiers : {Qt::KeyboardModifiers(), Qt::ShiftModifier | Qt::ControlModifier,
                                            Qt::KeyboardModifiers(Qt::KeypadModifier)}) {
        PassedOn parent;
        auto* edit = new WyShortcutEdit(&parent);
        edit->setReadOnly(true);
        edit->setText(QStringLiteral("some text"));
        press(*edit, key, modifiers);
        QCOMPARE(edit->text(), QStringLiteral("some text"));
        QCOMPARE(parent.presses, 1);
    }
    WyShortcutEdit editable;
    press(editable, key, Qt::NoModifier, QStringLiteral("x"));
    QCOMPARE(editable.text(), QStringLiteral("x")); // typed by the base class
}

void TestWyShortcutEdit::keysAreShownInNativeText_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QKeySequence>("shown");
    const Qt::KeyboardModifiers none;
    const Qt::KeyboardModifiers control = Qt::ControlModifier;
    const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
    QTest::newRow("letter") << int(Qt::Key_S) << none << QKeySequence(Qt::Key_S);
    QTest::newRow("function key") << int(Qt::Key_F12) << none << QKeySequence(Qt::Key_F12);
    QTest::newRow("Escape") << int(Qt::Key_Escape) << none << QKeySequence(Qt::Key_Escape);
    QTest::newRow("Backspace") << int(Qt::Key_Backspace) << none << QKeySequence(Qt::Key_Backspace);
    QTest::newRow("Control") << int(Qt::Key_S) << control << QKeySequence(Qt::CTRL + Qt::Key_S);
    QTest::newRow("Control, Alt") << int(Qt::Key_Delete) << (control | Qt::AltModifier)
                                  << QKeySequence(Qt::CTRL + Qt::ALT + Qt::Key_Delete);
    QTest::newRow("Meta") << int(Qt::Key_E) << Qt::KeyboardModifiers(Qt::MetaModifier)
                          << QKeySequence(Qt::META + Qt::Key_E);
    QTest::newRow("Shift") << int(Qt::Key_F3) << shift << QKeySequence(Qt::SHIFT + Qt::Key_F3);
    QTest::newRow("Shift, letter") << int(Qt::Key_A) << shift << QKeySequence(Qt::SHIFT + Qt::Key_A);
    QTest::newRow("Control, Shift") << int(Qt::Key_S) << (control | shift)
                                    << QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_S);
    QTest::newRow("another script") << 0x0416 << control << QKeySequence(int(Qt::CTRL) + 0x0416);
    QTest::newRow("AltGr key") << int(Qt::Key_AltGr) << none << QKeySequence(Qt::Key_AltGr);
}

void TestWyShortcutEdit::keysAreShownInNativeText()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QKeySequence, shown);
    ReadOnlyEdit edit;
    edit.setText(QStringLiteral("old"));
    press(edit, key, modifiers);
    QCOMPARE(edit.text(), native(shown));
    QCOMPARE(edit.portableText(), QString()); // not before the release
}

void TestWyShortcutEdit::keypadKeysEmptyTheText_data()
{
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    const Qt::KeyboardModifiers keypad = Qt::KeypadModifier;
    QTest::newRow("alone") << keypad;
    QTest::newRow("Shift") << (keypad | Qt::ShiftModifier);
    QTest::newRow("Control") << (keypad | Qt::ControlModifier);
    QTest::newRow("all") << (keypad | Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
}

void TestWyShortcutEdit::keypadKeysEmptyTheText()
{
    QFETCH(Qt::KeyboardModifiers, modifiers);
    ReadOnlyEdit edit;
    edit.setText(QStringLiteral("old"));
    press(edit, Qt::Key_7, modifiers);
    QCOMPARE(edit.text(), QString());
}

void TestWyShortcutEdit::shiftWithoutAnyCandidateChangesNothing()
{
    PassedOn parent;
    auto* edit = new WyShortcutEdit(&parent);
    edit->setReadOnly(true);
    edit->setText(QStringLiteral("old"));
    press(*edit, 0, Qt::ShiftModifier);
    QCOMPARE(edit->text(), QStringLiteral("old"));
    QCOMPARE(parent.presses, 0);
    press(*edit, Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(parent.presses, 1);
}

void TestWyShortcutEdit::pressesGoOnToTheEdit()
{
    PassedOn parent;
    auto* edit = new WyShortcutEdit(&parent);
    edit->setReadOnly(true);
    int presses = 0;
    for (int key : {int(Qt::Key_Control), int(Qt::Key_CapsLock), int(Qt::Key_F5)}) {
        press(*edit, key, Qt::NoModifier);
        QCOMPARE(parent.presses, ++presses);
    }
    press(*edit, Qt::Key_5, Qt::KeypadModifier);
    QCOMPARE(parent.presses, ++presses);
    press(*edit, Qt::Key_F5, Qt::AltModifier);
    QCOMPARE(parent.presses, ++presses);
}

void TestWyShortcutEdit::releasesGoOnPastTheEdit()
{
    PassedOn parent;
    auto* edit = new WyShortcutEdit(&parent);
    edit->setText(QStringLiteral("F5"));
    release(*edit, Qt::Key_F5, Qt::NoModifier);
    QCOMPARE(parent.releases, 1);
    edit->setText(QString());
    release(*edit, Qt::Key_F5, Qt::NoModifier);
    QCOMPARE(parent.releases, 2);
}

void TestWyShortcutEdit::anEditableEditTypesToo()
{
    WyShortcutEdit edit;
    press(edit, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
    QCOMPARE(edit.text(), native(QKeySequence(Qt::Key_A)) + QStringLiteral("a"));
    press(edit, Qt::Key_5, Qt::KeypadModifier, QStringLiteral("5"));
    QCOMPARE(edit.text(), QStringLiteral("5"));
}

void TestWyShortcutEdit::recordsOnRelease()
{
    ReadOnlyEdit edit;
    press(edit, Qt::Key_Control, Qt::NoModifier);
    press(edit, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(edit.portableText(), QString());
    release(edit, Qt::Key_S, Qt::ControlModifier);
    const QString text = native(QKeySequence(Qt::CTRL + Qt::Key_S));
    QCOMPARE(edit.portableText(), text);
    QCOMPARE(edit.text(), text);
    release(edit, Qt::Key_Control, Qt::ControlModifier);
    QCOMPARE(edit.portableText(), text);
    QCOMPARE(edit.text(), text);
}

void TestWyShortcutEdit::bareModifiersBringTheShortcutBack()
{
    ReadOnlyEdit edit;
    edit.SetKeySequence(QKeySequence(Qt::CTRL + Qt::Key_S));
    press(edit, Qt::Key_Control, Qt::NoModifier);
    QCOMPARE(edit.text(), native(QKeySequence(int(Qt::CTRL))));
    QVERIFY(edit.text() != edit.portableText());
    release(edit, Qt::Key_Control, Qt::ControlModifier);
    QCOMPARE(edit.text(), native(QKeySequence(Qt::CTRL + Qt::Key_S)));
    QCOMPARE(edit.portableText(), edit.text());
}

void TestWyShortcutEdit::aKeypadKeyBringsTheShortcutBack()
{
    ReadOnlyEdit edit;
    edit.SetKeySequence(QKeySequence(Qt::ALT + Qt::Key_F1));
    press(edit, Qt::Key_7, Qt::KeypadModifier);
    QCOMPARE(edit.text(), QString());
    release(edit, Qt::Key_7, Qt::KeypadModifier);
    QCOMPARE(edit.text(), native(QKeySequence(Qt::ALT + Qt::Key_F1)));
}

void TestWyShortcutEdit::releasingDoesNotRewriteTheText()
{
    WyShortcutEdit edit;
    const QString sloppy = QStringLiteral("f7");
    edit.setText(sloppy);
    release(edit, Qt::Key_F7, Qt::NoModifier);
    QCOMPARE(edit.text(), sloppy);
    QCOMPARE(edit.portableText(), native(QKeySequence(Qt::Key_F7)));
}

void TestWyShortcutEdit::textThatIsNoShortcut_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("words") << QStringLiteral("not a shortcut");
    QTest::newRow("bare modifiers") << native(QKeySequence(int(Qt::CTRL | Qt::SHIFT)));
}

void TestWyShortcutEdit::textThatIsNoShortcut()
{
    QFETCH(QString, text);
    WyShortcutEdit edit;
    edit.SetKeySequence(QKeySequence(Qt::Key_F2));
    edit.setText(text);
    release(edit, Qt::Key_A, Qt::NoModifier);
    QCOMPARE(edit.portableText(), native(QKeySequence(Qt::Key_F2)));
    QCOMPARE(edit.text(), edit.portableText());
}

void TestWyShortcutEdit::emptySequenceEmptiesTheEdit()
{
    WyShortcutEdit edit;
    edit.SetKeySequence(QKeySequence(Qt::Key_F2));
    edit.SetKeySequence(QKeySequence());
    QCOMPARE(edit.text(), QString());
    QCOMPARE(edit.portableText(), QString());
}

void TestWyShortcutEdit::severalKeysAreKept()
{
    const QKeySequence sequence(Qt::CTRL + Qt::Key_K, Qt::CTRL + Qt::Key_B);
    WyShortcutEdit edit;
    edit.SetKeySequence(sequence);
    QCOMPARE(edit.portableText(), native(sequence));
    release(edit, Qt::Key_B, Qt::ControlModifier);
    QCOMPARE(edit.portableText(), native(sequence));
}

void TestWyShortcutEdit::onlyModifiers_data()
{
    QTest::addColumn<QKeySequence>("sequence");
    QTest::addColumn<bool>("expected");
    QTest::newRow("empty") << QKeySequence() << true;
    QTest::newRow("key") << QKeySequence(Qt::Key_A) << false;
    QTest::newRow("key with modifiers") << QKeySequence(Qt::CTRL + Qt::Key_A) << false;
    QTest::newRow("unknown key") << QKeySequence(Qt::Key_unknown) << true;
    QTest::newRow("text of bare modifiers")
        << QKeySequence::fromString(native(QKeySequence(int(Qt::CTRL))), QKeySequence::NativeText) << true;
}

void TestWyShortcutEdit::onlyModifiers()
{
    QFETCH(QKeySequence, sequence);
    QFETCH(bool, expected);
    QCOMPARE(isOnlyContainsModifiers(sequence), expected);
}

void TestWyShortcutEdit::mayBeDeletedBehindAPress()
{
    // The press reaches the parent, which closes: the edit's handler is still running.
    class Closing : public QWidget
    {
    protected:
        void keyPressEvent(QKeyEvent*) override { delete edit; }

    public:
        WyShortcutEdit* edit = new WyShortcutEdit(this);
    } parent;
    parent.edit->setReadOnly(true);
    const QPointer<WyShortcutEdit> guard(parent.edit);
    QTest::keyPress(parent.edit, Qt::Key_F5);
    QVERIFY(!guard);
}

QTEST_MAIN(TestWyShortcutEdit)
#include "tst_wyshortcutedit.moc"

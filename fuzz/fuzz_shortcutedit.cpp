#include "FuzzTarget.h"

#include "WyWidgets/wycontrol/WyShortcutEdit.h"

#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>

namespace {

/// A recorder told case by case, except for what Shift makes of a key: only the platform knows that.
class Recorder
{
public:
    QString text;
    QKeySequence recorded;

    void press(int key, int modifiers, const QString& withShift)
    {
        switch (key) {
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Alt:
            text = native(QKeySequence(modifiers));
            return;
        case Qt::Key_Meta:
        case Qt::Key_CapsLock:
        case Qt::Key_Menu:
        case Qt::Key_VolumeDown:
        case Qt::Key_VolumeMute:
        case Qt::Key_VolumeUp:
        case Qt::Key_unknown:
            return;
        default:
            break;
        }
        if (modifiers & Qt::KeypadModifier)
            text.clear();
        else if (modifiers & Qt::ShiftModifier)
            text = withShift;
        else
            text = native(QKeySequence(modifiers + key));
    }

    void release()
    {
        const QKeySequence typed = QKeySequence::fromString(text, QKeySequence::NativeText);
        if (typed.toString(QKeySequence::PortableText).isEmpty())
            text = native(recorded);
        else
            recorded = typed;
    }

private:
    static QString native(const QKeySequence& sequence)
    {
        return sequence.toString(QKeySequence::NativeText);
    }
};

int keyOf(Fuzz::Input& input)
{
    static constexpr int special[] = {
        Qt::Key_Shift,      Qt::Key_Control,    Qt::Key_Alt,    Qt::Key_Meta,  Qt::Key_CapsLock, Qt::Key_Menu,
        Qt::Key_VolumeUp,   Qt::Key_unknown,    Qt::Key_Return, Qt::Key_F5,    Qt::Key_Delete,   Qt::Key_Tab,
        Qt::Key_VolumeDown, Qt::Key_VolumeMute, Qt::Key_Left,   Qt::Key_Escape};
    return input.flag() ? special[input.byte() % 16] : Qt::Key_Space + input.byte() % 95;
}

int modifiersOf(Fuzz::Input& input)
{
    static constexpr int all[] = {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier,
                                  Qt::KeypadModifier};
    int modifiers = 0;
    const int chosen = input.byte();
    for (int i = 0; i < 5; ++i)
        modifiers |= chosen & (1 << i) ? all[i] : 0;
    return modifiers;
}

} // namespace

void Fuzz::check(Input& input)
{
    WyWidgets::WyShortcutEdit edit;
    edit.setReadOnly(true);
    Recorder recorder;
    while (!input.atEnd()) {
        const int key = keyOf(input);
        const auto modifiers = Qt::KeyboardModifiers(modifiersOf(input));
        if (input.byte() % 3) {
            QKeyEvent event(QEvent::KeyPress, key, modifiers);
            QApplication::sendEvent(&edit, &event);
            recorder.press(key, int(event.modifiers()), edit.text()); // which know of the key itself
        } else {
            QKeyEvent event(QEvent::KeyRelease, key, modifiers);
            QApplication::sendEvent(&edit, &event);
            recorder.release();
        }
        expectEqual(edit.text(), recorder.text, "the shown shortcut");
        expectEqual(edit.portableText(), recorder.recorded.toString(QKeySequence::NativeText),
                    "the recorded shortcut");
    }
}

#include "WyWidgets/wycontrol/WyShortcutEdit.h"

#include "WyWidgets/internal/edits/ShortcutKeys.h"

#include <QKeyEvent>
#include <QPointer>

namespace WyWidgets {

namespace {

QString nativeText(const QKeySequence& sequence)
{
    return sequence.toString(QKeySequence::NativeText);
}

bool isShownAlone(int key)
{
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt;
}

bool isIgnored(int key)
{
    switch (key) {
    case Qt::Key_Meta:
    case Qt::Key_CapsLock:
    case Qt::Key_Menu:
    case Qt::Key_VolumeDown:
    case Qt::Key_VolumeMute:
    case Qt::Key_VolumeUp:
    case Qt::Key_unknown:
        return true;
    default:
        return false;
    }
}

/// What the edit shows for the pressed key; null if it is not to react at all.
std::optional<QString> shownText(QKeyEvent* event)
{
    const Qt::KeyboardModifiers modifiers = event->modifiers();
    if (isShownAlone(event->key()))
        return nativeText(QKeySequence(int(modifiers)));
    if (modifiers == Qt::NoModifier)
        return nativeText(QKeySequence(event->key()));
    if (modifiers & Qt::KeypadModifier) // whatever else is held: keypad keys are never recorded
        return QString();
    if (modifiers & Qt::ShiftModifier) {
        const std::optional<int> key = shiftedShortcutKey(event);
        return key ? std::make_optional(nativeText(QKeySequence(*key))) : std::nullopt;
    }
    return nativeText(QKeySequence(int(modifiers) | event->key()));
}

} // namespace

WyShortcutEdit::WyShortcutEdit(QWidget* parent) : QLineEdit(parent) {}

void WyShortcutEdit::SetKeySequence(const QKeySequence& sequence)
{
    m_sequence = sequence;
    setText(nativeText(sequence));
}

QString WyShortcutEdit::portableText() const
{
    return nativeText(m_sequence);
}

void WyShortcutEdit::keyPressEvent(QKeyEvent* event)
{
    const QPointer<WyShortcutEdit> guard(this);
    if (!isIgnored(event->key())) {
        const std::optional<QString> shown = shownText(event);
        if (!shown)
            return;
        setText(*shown);
    }
    if (guard)
        QLineEdit::keyPressEvent(event);
}

void WyShortcutEdit::keyReleaseEvent(QKeyEvent* event)
{
    const QPointer<WyShortcutEdit> guard(this);
    const QKeySequence typed = QKeySequence::fromString(text(), QKeySequence::NativeText);
    if (isOnlyContainsModifiers(typed))
        setText(nativeText(m_sequence));
    else
        m_sequence = typed; // the text stays as it is
    if (guard)
        QWidget::keyReleaseEvent(event);
}

bool isOnlyContainsModifiers(const QKeySequence& sequence)
{
    return sequence.toString(QKeySequence::PortableText).isEmpty();
}

} // namespace WyWidgets

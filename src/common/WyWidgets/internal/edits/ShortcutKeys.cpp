#include "WyWidgets/internal/edits/ShortcutKeys.h"

#include <QKeyEvent>
#include <QList>

#ifdef WYWIDGETS_KEY_MAPPER
#include <private/qkeymapper_p.h>
#endif

namespace WyWidgets {

namespace {

#ifdef WYWIDGETS_KEY_MAPPER

/// Qt asks the platform for everything the key may stand for on the user's layout.
QList<int> possibleKeys(QKeyEvent* event)
{
    return QKeyMapper::possibleKeys(event);
}

#else

/// A printable key other than a letter that arrives with Shift down is the symbol that Shift has made of it.
bool isMadeByShift(int key)
{
    return key < Qt::Key_Escape && key != Qt::Key_Space && !QChar::isLetter(uint(key));
}

/// Without the platform's help only the key itself is known.
QList<int> possibleKeys(QKeyEvent* event)
{
    const int modifiers = int(event->modifiers());
    int key = event->key();
    if (key == 0 && !event->text().isEmpty())
        key = event->text().at(0).unicode();
    if (key == 0)
        return {};
    if (isMadeByShift(key))
        return {key, key | modifiers};
    return {key | modifiers, key};
}

#endif

} // namespace

std::optional<int> shiftedShortcutKey(QKeyEvent* event)
{
    const QList<int> candidates = possibleKeys(event);
    if (candidates.isEmpty())
        return std::nullopt;
    const int modifiers = int(event->modifiers());
    for (int candidate : candidates) {
        const bool isKeyWithModifiers = qint64(candidate) - event->key() == modifiers;
        const bool isKeyAlone = candidate == event->key() && modifiers == Qt::ShiftModifier;
        if (isKeyWithModifiers || isKeyAlone)
            return candidate;
    }
    return candidates.first();
}

} // namespace WyWidgets

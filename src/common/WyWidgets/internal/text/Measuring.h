#pragma once

#include <QChar>
#include <QFont>

namespace WyWidgets {

// What QFontMetrics::horizontalAdvance() does to whole lines, for code that measures as few of them as it
// can.

/// The advance counts up to the first of these: a shorter variant of the text follows.
constexpr QChar kEndOfMeasuring(0x009c);

/// Whether letters stand closer than the font has them, so that more letters may make a line narrower.
inline bool hasNegativeLetterSpacing(const QFont& font)
{
    if (font.letterSpacingType() == QFont::AbsoluteSpacing)
        return font.letterSpacing() < 0;
    return font.letterSpacing() != 0 && font.letterSpacing() < 100; // 0 is the default, as 100 is
}

} // namespace WyWidgets

#include "WyWidgets/internal/text/WordWrap.h"

#include "WyWidgets/internal/text/Measuring.h"

#include <QFontMetrics>
#include <QHash>

#include <algorithm>
#include <vector>

namespace WyWidgets {

namespace {

// Measuring a line anew for each of its words would shape every word many times over. The sum of single
// characters tells where a line should end, and a measurement or two settle it. The lines come out as if
// measured word by word, because a line never gets narrower by another word. (A LineMeter would do for most
// scripts, but asks about every word of joined ones, such as Arabic.)

constexpr char16_t kTabulatedEnd = 0x0530; // Latin, Greek and Cyrillic
// After so many guesses that missed, what is left is halved: widths here are far from the sum of characters.
constexpr int kMostGuesses = 8;

/// False where another word may make a line narrower, or measuring sees only a part of it.
bool linesOnlyGrow(const QString& text, const QFont& font)
{
    return !hasNegativeLetterSpacing(font) && font.wordSpacing() == 0.0 && text.isValidUtf16() &&
           !text.contains(kEndOfMeasuring);
}

/// The share of its own width that a character surely adds to a line. The rest allows for kerning, and for
/// digits that follow their neighbours into another font. In other scripts letters join or stack, in Nastaliq
/// to words that are hardly wider than one of them.
double leastShare(QChar character)
{
    if (character.isSpace() || character.isMark() || character.isSurrogate() || !character.isPrint())
        return 0.0;
    switch (character.script()) {
    case QChar::Script_Common:
    case QChar::Script_Cyrillic:
    case QChar::Script_Greek:
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Latin:
        return 2.0 / 3.0;
    default:
        return 0.0;
    }
}

/// What is known about a character without shaping the text around it, in pixels.
struct CharacterWidth
{
    double alone = -1.0; ///< negative until looked up
    double least = 0.0;
};

/// Looks each character up once.
class CharacterWidths
{
public:
    explicit CharacterWidths(const QFont& font) : m_metrics(font) {}

    const CharacterWidth& of(QChar character)
    {
        const char16_t code = character.unicode();
        CharacterWidth& width = code < kTabulatedEnd ? m_tabulated[code] : m_others[code];
        if (width.alone < 0.0) {
            width.alone = std::max(0.0, m_metrics.horizontalAdvance(character));
            width.least = width.alone * leastShare(character);
        }
        return width;
    }

private:
    QFontMetricsF m_metrics;
    std::vector<CharacterWidth> m_tabulated = std::vector<CharacterWidth>(kTabulatedEnd);
    QHash<char16_t, CharacterWidth> m_others;
};

class Wrapper
{
public:
    Wrapper(const QString& text, const QFont& font, int width)
        : m_text(text), m_metrics(font), m_width(width), m_linesOnlyGrow(linesOnlyGrow(text, font))
    {
        findWords(font);
    }

    QString wrapped()
    {
        QString result;
        result.reserve(m_text.size());
        for (int first = 0; first < wordCount();) {
            const int last = m_linesOnlyGrow ? searchLastWord(first) : countToLastWord(first);
            if (first > 0)
                result += QLatin1Char('\n');
            result += m_text.midRef(begin(first), m_words[last].end - begin(first)).trimmed();
            first = last + 1;
        }
        return result.trimmed();
    }

private:
    /// A word owns the one white space that ends it. Sums count from the start of the text.
    struct Word
    {
        int end = 0;        ///< index of that white space
        double alone = 0.0; ///< sum over the characters before it
        double least = 0.0; ///< the same
    };

    void findWords(const QFont& font)
    {
        CharacterWidths widths(font);
        Word word;
        for (; word.end < m_text.size(); ++word.end) {
            const QChar character = m_text.at(word.end);
            if (character.isSpace())
                m_words.push_back(word);
            const CharacterWidth& width = widths.of(character);
            word.alone += width.alone;
            word.least += width.least;
        }
    }

    int wordCount() const { return int(m_words.size()); }
    int begin(int word) const { return word == 0 ? 0 : m_words[word - 1].end + 1; }

    int measure(int first, int last) const
    {
        return m_metrics.horizontalAdvance(m_text.mid(begin(first), m_words[last].end - begin(first)));
    }

    int countToLastWord(int first) const
    {
        int last = first;
        while (last + 1 < wordCount() && measure(first, last + 1) <= m_width)
            ++last;
        return last;
    }

    /// Closes in on the end of the line from both sides.
    int searchLastWord(int first)
    {
        const double aloneBefore = first == 0 ? 0.0 : m_words[first - 1].alone;
        int fitting = first;
        int tooWide = wordCount();
        int probe = lastWithin(aloneBefore + m_width / m_stretch, &Word::alone);
        for (int guesses = 1; fitting + 1 < tooWide; ++guesses) {
            probe = qBound(fitting + 1, probe, tooWide - 1);
            const Word& word = m_words[probe];
            const int width = measure(first, probe);
            const double room = double(m_width) - width;
            const int certain = lastWithin(word.least + room, &Word::least);
            if (room >= 0) {
                fitting = probe;
                tooWide = std::min(tooWide, certain + 1);
            } else {
                fitting = std::max(fitting, certain);
                tooWide = probe;
            }
            if (width > 0 && word.alone > aloneBefore)
                m_stretch = width / (word.alone - aloneBefore);
            probe = guesses < kMostGuesses ? lastWithin(word.alone + room / m_stretch, &Word::alone)
                                           : fitting + (tooWide - fitting) / 2;
        }
        return fitting;
    }

    int lastWithin(double limit, double Word::*sum) const
    {
        const auto beyond =
            std::upper_bound(m_words.begin(), m_words.end(), limit,
                             [sum](double value, const Word& word) { return value < word.*sum; });
        return int(beyond - m_words.begin()) - 1;
    }

    const QString& m_text;
    QFontMetrics m_metrics;
    int m_width;
    bool m_linesOnlyGrow;
    std::vector<Word> m_words;
    double m_stretch = 1.0; ///< how much wider the last measured line was than the sum of its characters
};

} // namespace

QString wrapWords(QString text, const QFont& font, int width)
{
    text.replace(QLatin1Char('\n'), QLatin1Char(' '));
    text += QLatin1Char(' ');
    return Wrapper(text, font, width).wrapped();
}

} // namespace WyWidgets

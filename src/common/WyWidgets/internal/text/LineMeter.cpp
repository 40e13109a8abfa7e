#include "WyWidgets/internal/text/LineMeter.h"

#include "WyWidgets/internal/text/Measuring.h"

#include <QFont>

namespace WyWidgets {

namespace {

constexpr float kUnknown = -1;
constexpr int kMeasureAll = 2;
// How much kerning may change, in em: across a space, and between any two letters.
constexpr qreal kSeamTolerance = 0.25;
constexpr qreal kPairTolerance = 0.25;
constexpr QChar kBehindLatin(0x0250);
constexpr QChar kTab(0x0009); // advances to the next tab stop

bool hasNegativeSpacing(const QFont& font)
{
    return font.wordSpacing() < 0 || hasNegativeLetterSpacing(font);
}

bool hasSpacing(const QFont& font)
{
    return font.letterSpacing() != 0 || font.wordSpacing() != 0;
}

/// Characters of which several in a row may share one negative spacing are measured without it.
QFont withoutNegativeSpacing(QFont font)
{
    if (hasNegativeLetterSpacing(font))
        font.setLetterSpacing(QFont::PercentageSpacing, 100);
    if (font.wordSpacing() < 0)
        font.setWordSpacing(0);
    return font;
}

struct Range
{
    ushort first;
    ushort last;
};

/// Characters that stand for themselves: one glyph each, whatever the neighbours, apart from kerning and
/// ligatures no narrower than what they replace. Sorted.
constexpr Range kPlain[] = {
    {0x0020, 0x007e}, // Latin
    {0x00a0, 0x00ac}, // more Latin up to the soft hyphen
    {0x00ae, 0x024f}, // more Latin
    {0x0370, 0x0482}, // Greek, Cyrillic
    {0x048a, 0x052f}, // more Cyrillic
    {0x05d0, 0x05ea}, // Hebrew
    {0x1e00, 0x1fff}, // more Latin and Greek
    {0x2010, 0x2027}, // punctuation
    {0x2030, 0x205e}, // more punctuation
    {0x20a0, 0x20bf}, // currencies
    {0x3000, 0x3029}, // Chinese and Japanese punctuation
    {0x3041, 0x3096}, // Hiragana
    {0x30a0, 0x30ff}, // Katakana
    {0x3400, 0x4dbf}, // Chinese
    {0x4e00, 0x9fff}, // more Chinese
    {0xac00, 0xd7a3}, // Korean
    {0xff01, 0xff60}, // full-width Latin
};

bool isPlain(QChar character)
{
    const ushort unit = character.unicode();
    for (const Range& range : kPlain) {
        if (unit <= range.last)
            return unit >= range.first;
    }
    return false;
}

/// Control characters but white space: fonts disagree about them, and the letters around decide on the font.
bool isUnpredictable(QChar character)
{
    return character.category() == QChar::Other_Control && !character.isSpace();
}

/// Whether the character may come from another font than Latin letters, and take digits and punctuation
/// beside it along.
bool isOfOtherScript(QChar character)
{
    return character >= kBehindLatin &&
           (character.isLetter() || character.isMark() || character.isSurrogate());
}

/// Marks and format characters have no say alone, but may change how their neighbours are drawn.
bool isModifier(QChar character)
{
    switch (character.category()) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_SpacingCombining:
    case QChar::Mark_Enclosing:
    case QChar::Other_Control:
    case QChar::Other_Format:
        return true;
    default:
        return false;
    }
}

} // namespace

LineMeter::LineMeter(const QFont& font, int width)
    : m_metrics(font),
      m_singleMetrics(withoutNegativeSpacing(font)),
      m_em(m_singleMetrics.height()),
      m_measuresCharacters(font.capitalization() == QFont::MixedCase && !hasSpacing(font)),
      m_width(width),
      m_caution(hasNegativeSpacing(font) ? 1 : 0)
{
}

void LineMeter::start(QStringView line)
{
    m_line = line;
    m_end = m_measured = m_seam = Beginning();
    m_measuredAdvance = 0;
    m_firstLetter = -1;
    m_unsteadyEnd = 0;
    m_isAdditive = true;
    m_isPredictable = true;
    m_hasOtherScripts = false;
    m_isContradicted = false;
}

/// Where scripts meet, characters may come from a wider font than alone, so the bound is put to the test once
/// a line.
bool LineMeter::isContradicted()
{
    if (m_hasOtherScripts && m_caution < kMeasureAll && m_end.length > m_measured.length)
        measure(m_end);
    return m_isContradicted;
}

bool LineMeter::fits(int length)
{
    sumTo(length);
    if (!m_isPredictable) {
        measure(m_end);
        return m_measuredAdvance <= m_width;
    }
    if (m_caution < kMeasureAll && m_measuredAdvance + highestOf(m_end.sum - m_measured.sum) <= m_width)
        return true;
    // Where sums say little, words are measured alone: behind the last one that is known.
    if (!restIsSteady() && isSeam(m_seam.length) && m_seam.length > m_measured.length) {
        measure(m_seam);
        return fits(length);
    }
    if (isSeam(m_measured.length)) {
        const int rest = advance(m_measured.length, length);
        compare(rest, m_end);
        if (qAbs(m_measuredAdvance + rest - m_width) > m_em * kSeamTolerance)
            return m_measuredAdvance + rest < m_width;
    }
    measure(m_end);
    return m_measuredAdvance <= m_width;
}

bool LineMeter::hasSteadyStep(int length) const
{
    const QChar last = m_line.at(length - 1);
    const QChar next = m_line.at(length);
    // The line's first letter tells the script, and so the font, of digits and punctuation before it.
    const bool tellsScript = m_firstLetter < 0 && next.isLetter() && !last.isLetter();
    return m_caution == 0 && isPlain(last) && isPlain(next) && !tellsScript;
}

bool LineMeter::seemsToExceed(int length, qreal margin)
{
    sumTo(length);
    return m_measuredAdvance + m_end.sum - m_measured.sum > m_width + margin;
}

int LineMeter::firstTooWide(int fitting, int tooWide)
{
    // Without its last character the beginning is narrower by what that advances, give or take kerning.
    if (tooWide - fitting > 1 && m_measured.length == tooWide &&
        m_measuredAdvance - atMost(tooWide - 1) + m_em * kPairTolerance <= m_width)
        return tooWide;
    for (int step = 1; tooWide - fitting > 1; step *= 2) {
        const int length = qMax(tooWide - step, fitting + 1);
        (advance(0, length) <= m_width ? fitting : tooWide) = length;
    }
    return tooWide;
}

int LineMeter::advance(int from, int to) const
{
    return m_metrics.horizontalAdvance(QString::fromRawData(m_line.data() + from, to - from));
}

void LineMeter::measure(Beginning beginning)
{
    const int measured = advance(0, beginning.length);
    compare(measured - m_measuredAdvance, beginning);
    m_measured = beginning;
    m_measuredAdvance = measured;
}

/// Compares what the characters between the measured beginning and this one advance with their sum.
void LineMeter::compare(int rest, Beginning beginning)
{
    const qreal sum = beginning.sum - m_measured.sum;
    if (m_caution < kMeasureAll && (rest > highestOf(sum) || (restIsSteady() && rest < sum - allowance(sum))))
        m_isContradicted = true;
}

/// Kerning, rounding and letters that are wider beside others: grows with the characters not measured.
qreal LineMeter::allowance(qreal sum) const
{
    return (m_em / 2 + sum / 32) * (1 + 3 * m_caution);
}

qreal LineMeter::highestOf(qreal sum) const
{
    return sum * (1 + m_caution) + allowance(sum);
}

bool LineMeter::restIsSteady() const
{
    return m_unsteadyEnd <= m_measured.length;
}

/// Whether the rest of the line behind this length advances alone as it does there, but for kerning at the
/// seam: it begins with a space and a letter, which tells the script of all that follows.
bool LineMeter::isSeam(int length) const
{
    return m_caution == 0 && m_isAdditive && m_firstLetter < length && length + 1 < m_end.length &&
           m_line.at(length) == QLatin1Char(' ') && m_line.at(length + 1).isLetter();
}

void LineMeter::sumTo(int length)
{
    for (int& index = m_end.length; index < length; ++index) {
        const QChar character = m_line.at(index);
        if (character == QLatin1Char(' '))
            m_seam = m_end;
        if (m_firstLetter < 0 && character.isLetter())
            m_firstLetter = index;
        m_hasOtherScripts = m_hasOtherScripts || isOfOtherScript(character);
        if (character == kTab || character == kEndOfMeasuring)
            m_isAdditive = false;
        if (!isPlain(character)) {
            m_unsteadyEnd = index + 1;
            m_isPredictable = m_isPredictable && !isUnpredictable(character);
        }
        m_end.sum += atMost(index);
    }
}

/// What the character at this index adds at most to the line.
qreal LineMeter::atMost(int index)
{
    const QChar character = m_line.at(index);
    const auto modifierAt = [this](int i) {
        return i >= 0 && isModifier(m_line.at(i));
    };
    if (isPlain(character))
        return ownAdvance(character.unicode());
    // A character beyond the basic plane counts whole at its first half, and again at its second one if what
    // was measured ends between them: alone, the first half may be narrower.
    if (character.isLowSurrogate() && index > 0 && m_line.at(index - 1).isHighSurrogate()) {
        const uint whole = QChar::surrogateToUcs4(m_line.at(index - 1), character);
        return index == m_measured.length ? ownAdvance(whole) : 0;
    }
    if (character.isHighSurrogate() && index + 1 < m_line.size() && m_line.at(index + 1).isLowSurrogate()) {
        return qMax(ownAdvance(character.unicode()),
                    ownAdvance(QChar::surrogateToUcs4(character, m_line.at(index + 1))));
    }
    // The first of several modifiers may turn the character before it into another one.
    const qreal change = modifierAt(index) && !modifierAt(index - 1) ? m_em : 0;
    return ownAdvance(character.unicode()) + change;
}

float LineMeter::ownAdvance(uint codePoint)
{
    const auto measure = [this, codePoint] {
        // Measuring a character is much quicker than shaping a text of one, but knows no spacing and no case.
        if (m_measuresCharacters && codePoint <= 0xffff && isPlain(QChar(ushort(codePoint))))
            return float(m_singleMetrics.horizontalAdvance(QChar(ushort(codePoint))));
        return float(m_singleMetrics.horizontalAdvance(QString::fromUcs4(&codePoint, 1)));
    };
    if (codePoint > 0xffff) {
        const auto known = m_others.constFind(codePoint);
        return known != m_others.constEnd() ? *known : *m_others.insert(codePoint, measure());
    }
    std::unique_ptr<Page>& page = m_pages[codePoint >> 8];
    if (!page) {
        page = std::make_unique<Page>();
        page->fill(kUnknown);
    }
    float& advance = (*page)[codePoint & 0xff];
    if (advance < 0)
        advance = measure();
    return advance;
}

} // namespace WyWidgets

#pragma once

#include <QFontMetrics>
#include <QFontMetricsF>
#include <QHash>
#include <QStringView>

#include <array>
#include <memory>

class QFont;

namespace WyWidgets {

/// Tells whether the beginnings of a line fit a width, as QFontMetrics::horizontalAdvance() would, but asks
/// it only near the decision.
///
/// Measuring shapes the text and is slow, and a loop that wraps text asks again and again about nearly the
/// same text. The meter knows what single characters advance on their own. The beginning measured last, these
/// advances and an allowance for kerning bound the advance of a longer beginning from above: while the bound
/// is within the width, nothing is measured.
///
/// Use one meter for a whole text and decideLine() for each of its lines. Where every length matters and not
/// only the ends of words, hasSteadyStep() tells which ones need no question of their own.
class LineMeter
{
public:
    LineMeter(const QFont& font, int width);

    /// Returns what `decide` does after asking this meter about the line. It is called again, with a more
    /// cautious meter, if what was measured contradicts what was not; so all it knows about the line must be
    /// its own. The line begins at the text's remaining characters, which are not copied.
    template <typename Decide>
    auto decideLine(QStringView line, Decide decide)
    {
        start(line);
        auto decision = decide();
        while (isContradicted()) {
            ++m_caution;
            start(line);
            decision = decide();
        }
        return decision;
    }

    /// Whether the first `length` characters advance no more than the width. Lengths must not decrease while
    /// a line is decided.
    bool fits(int length);

    /// Whether the character after the first `length` (at least one) makes the line no narrower. False also
    /// where that is not known: in scripts whose letters change shape, beside marks, within emoji.
    bool hasSteadyStep(int length) const;

    /// Whether the first `length` characters probably advance more than the width and `margin` pixels. Counts
    /// as a question to fits() as far as the order of lengths is concerned.
    bool seemsToExceed(int length, qreal margin);

    /// The first length that does not fit, where `fitting` does, `tooWide` was asked for last and does not,
    /// and the steps between are steady.
    int firstTooWide(int fitting, int tooWide);

private:
    using Page = std::array<float, 256>;
    /// A length and the sum of what its characters advance on their own.
    struct Beginning
    {
        int length = 0;
        qreal sum = 0;
    };

    void start(QStringView line);
    bool isContradicted();
    int advance(int from, int to) const;
    void measure(Beginning beginning);
    void compare(int rest, Beginning beginning);
    qreal allowance(qreal sum) const;
    qreal highestOf(qreal sum) const;
    bool restIsSteady() const;
    bool isSeam(int length) const;
    void sumTo(int length);
    qreal atMost(int index);
    float ownAdvance(uint codePoint);

    const QFontMetrics m_metrics;
    const QFontMetricsF m_singleMetrics;
    const qreal m_em;
    const bool m_measuresCharacters;
    const int m_width;
    /// 1: no step is steady and the bound is wider; 2: every length is measured.
    int m_caution = 0;

    // What single characters advance: pages of the basic plane, and the rest.
    std::array<std::unique_ptr<Page>, 256> m_pages;
    QHash<uint, float> m_others;

    QStringView m_line;
    Beginning m_end;      // as far as the sum goes
    Beginning m_measured; // the beginning that was measured last, and
    int m_measuredAdvance = 0;
    Beginning m_seam; // ends before the last space
    int m_firstLetter = -1;
    int m_unsteadyEnd = 0; // ends with the last character that is not plain
    bool m_isAdditive = true;
    bool m_isPredictable = true;
    bool m_hasOtherScripts = false;
    bool m_isContradicted = false;
};

} // namespace WyWidgets

#include "WyWidgets/internal/toast/ToastText.h"

#include <QtMath>

#include <algorithm>

namespace WyWidgets {

namespace {

/// The text as QFontMetrics breaks it into lines.
QString withLineSeparators(QString text)
{
    text.replace(QLatin1Char('\n'), QChar::LineSeparator);
    text.replace(QLatin1Char('\r'), QLatin1Char(' '));
    text.replace(QLatin1Char('\t'), QLatin1Char(' '));
    return text;
}

/// Next to some characters Qt breaks lines where it would not at another width, and one of them (0x9c) stands
/// between versions of a text of which it wraps the first that fits. Those that texts do have are not among
/// them: the escape character stands in what programs print for a terminal.
bool isUnruly(QChar character)
{
    static const QString ruly = QStringLiteral("\n\r\t\x1b");
    if (character.category() == QChar::Other_Control)
        return !ruly.contains(character);
    return character == QChar::ObjectReplacementCharacter;
}

} // namespace

ToastText::ToastText(const QFont& font, const QString& text)
    : m_font(font),
      m_metrics(font),
      m_text(text),
      m_isUnruly(std::any_of(text.cbegin(), text.cend(), isUnruly))
{
}

ToastText::~ToastText() = default;

QSize ToastText::oneLine() const
{
    return m_metrics.boundingRect(m_text).size();
}

QSize ToastText::wrapped(int width) const
{
    if (isEmpty())
        return {0, 0};
    if (!m_isUnruly) {
        const Lines lines = breakLines(width);
        if (m_linesAreEqual)
            return {qCeil(lines.naturalWidth), leastHeightOf(lines.count)};
    }
    return m_metrics.boundingRect(QRect(0, 0, width, 0), Qt::TextWordWrap, m_text).size();
}

int ToastText::leastHeight(int width) const
{
    return isEmpty() || m_isUnruly ? 0 : leastHeightOf(breakLines(width).count);
}

void ToastText::findPieces() const
{
    QTextOption option;
    option.setTextDirection(Qt::LeftToRight);
    m_layout = std::make_unique<QTextLayout>(withLineSeparators(m_text), m_font);
    m_layout->setTextOption(option);
    m_layout->beginLayout();
    for (QTextLine line = m_layout->createLine(); line.isValid(); line = m_layout->createLine()) {
        line.setLineWidth(0);
        const int height = qCeil(line.height());
        if (m_pieces.empty())
            m_leastLineHeight = height;
        m_linesAreEqual = m_linesAreEqual && height == m_leastLineHeight;
        // Every line at any width holds a whole piece at least.
        m_leastLineHeight = qMin(m_leastLineHeight, height);
        m_pieces.push_back(line);
    }
}

/// Every line starts where a piece does: that piece's line is given the wanted width.
ToastText::Lines ToastText::breakLines(int width) const
{
    if (!m_layout)
        findPieces();
    Lines lines;
    for (auto piece = m_pieces.begin(); piece != m_pieces.end(); ++lines.count) {
        QTextLine line = *piece;
        line.setLineWidth(qMax(0, width));
        lines.naturalWidth = qMax(lines.naturalWidth, line.naturalTextWidth());
        const int end = line.textStart() + line.textLength();
        piece = std::lower_bound(piece + 1, m_pieces.end(), end,
                                 [](const QTextLine& next, int start) { return next.textStart() < start; });
    }
    return lines;
}

/// Lines start on whole pixels, with the font's leading between them.
int ToastText::leastHeightOf(int lines) const
{
    return lines * m_leastLineHeight + (lines - 1) * qCeil(QFontMetricsF(m_font).leading());
}

} // namespace WyWidgets

#include "WyWidgets/internal/ToastText.h"

#include <QTextLayout>
#include <QtMath>

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

} // namespace

ToastText::ToastText(const QFont& font, const QString& text) : m_font(font), m_metrics(font), m_text(text) {}

ToastText::~ToastText() = default;

QSize ToastText::oneLine() const
{
    return m_metrics.boundingRect(m_text).size();
}

QSize ToastText::wrapped(int width) const
{
    if (isEmpty())
        return {0, 0};
    return m_metrics.boundingRect(QRect(0, 0, width, 0), Qt::TextWordWrap, m_text).size();
}

int ToastText::leastHeight(int width) const
{
    if (isEmpty())
        return 0;
    prepareLayout();
    const int lines = countLines(width);
    return qFloor(lines * m_leastLineHeight + (lines - 1) * m_metrics.leading());
}

void ToastText::prepareLayout() const
{
    if (m_layout)
        return;
    m_layout = std::make_unique<QTextLayout>(withLineSeparators(m_text), m_font);
    m_layout->setCacheEnabled(true);
    // Lines differ in height where glyphs come from several fonts. At no width a line holds only one piece
    // that cannot be broken, and every line at any width holds such a piece at least.
    const int lines = countLines(0);
    m_leastLineHeight = lines > 0 ? m_layout->lineAt(0).height() : 0;
    for (int i = 1; i < lines; ++i)
        m_leastLineHeight = qMin(m_leastLineHeight, m_layout->lineAt(i).height());
}

int ToastText::countLines(int width) const
{
    m_layout->beginLayout();
    for (QTextLine line = m_layout->createLine(); line.isValid(); line = m_layout->createLine())
        line.setLineWidth(width);
    m_layout->endLayout();
    return m_layout->lineCount();
}

} // namespace WyWidgets

#include "CodeView.h"

#include <QEvent>
#include <QFontDatabase>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSyntaxHighlighter>
#include <QTextBlock>
#include <QWheelEvent>
#include <QtMath>

class CodeHighlighter : public QSyntaxHighlighter
{
public:
    enum Kind { Keyword, Type, Text, Comment, KindCount };

    using QSyntaxHighlighter::QSyntaxHighlighter;

    QColor color(Kind kind) const { return m_colors[kind]; }

    void setColor(Kind kind, const QColor& color)
    {
        if (m_colors[kind] == color)
            return;
        m_colors[kind] = color;
        rehighlight();
    }

protected:
    void highlightBlock(const QString& line) override
    {
        // The first alternative that matches at a position wins: a "//" inside a string is no comment.
        static const QRegularExpression tokens(QStringLiteral(
            R"re((?<text>"(?:[^"\\]|\\.)*"|'[^']*'|\b\d[\w.]*))re"
            R"re(|(?<comment>//.*|#\w+))re"
            R"re(|\b(?<keyword>auto|bool|case|class|const|constexpr|double|else|emit|false|for|if|int|new|nullptr)re"
            R"re(|override|private|protected|public|return|static|struct|switch|this|true|using|void|while)\b)re"
            R"re(|\b(?<type>Wy\w+|Toast\w+|Q[A-Z]\w+|Qt)\b)re"));
        QRegularExpressionMatchIterator matches = tokens.globalMatch(line);
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            setFormat(match.capturedStart(), match.capturedLength(), m_colors[kindOf(match)]);
        }
    }

private:
    static Kind kindOf(const QRegularExpressionMatch& match)
    {
        if (match.capturedLength(QStringLiteral("text")) > 0)
            return Text;
        if (match.capturedLength(QStringLiteral("comment")) > 0)
            return Comment;
        return match.capturedLength(QStringLiteral("keyword")) > 0 ? Keyword : Type;
    }

    QColor m_colors[KindCount];
};

CodeView::CodeView(const QString& code, QWidget* parent)
    : QPlainTextEdit(code, parent), m_highlighter(new CodeHighlighter(document()))
{
    setReadOnly(true);
    setTabChangesFocus(true);
    setLineWrapMode(NoWrap);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setAccessibleName(tr("Source code"));
    document()->setDocumentMargin(0);
    fitHeight();
}

QColor CodeView::keywordColor() const
{
    return m_highlighter->color(CodeHighlighter::Keyword);
}

void CodeView::setKeywordColor(const QColor& color)
{
    m_highlighter->setColor(CodeHighlighter::Keyword, color);
}

QColor CodeView::typeColor() const
{
    return m_highlighter->color(CodeHighlighter::Type);
}

void CodeView::setTypeColor(const QColor& color)
{
    m_highlighter->setColor(CodeHighlighter::Type, color);
}

QColor CodeView::textColor() const
{
    return m_highlighter->color(CodeHighlighter::Text);
}

void CodeView::setTextColor(const QColor& color)
{
    m_highlighter->setColor(CodeHighlighter::Text, color);
}

QColor CodeView::commentColor() const
{
    return m_highlighter->color(CodeHighlighter::Comment);
}

void CodeView::setCommentColor(const QColor& color)
{
    m_highlighter->setColor(CodeHighlighter::Comment, color);
}

void CodeView::changeEvent(QEvent* event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange)
        fitHeight();
}

void CodeView::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    fitHeight();
}

// All lines are in view: the wheel scrolls the page, or a long line sideways.
void CodeView::wheelEvent(QWheelEvent* event)
{
    if (qAbs(event->angleDelta().x()) > qAbs(event->angleDelta().y()))
        QPlainTextEdit::wheelEvent(event);
    else
        event->ignore();
}

void CodeView::fitHeight()
{
    const qreal lines = blockBoundingRect(document()->firstBlock()).height() * blockCount();
    const bool scrolls = document()->size().width() > viewport()->width();
    const int bar = scrolls ? horizontalScrollBar()->sizeHint().height() : 0;
    setFixedHeight(qCeil(lines) + bar + 2 * frameWidth());
}

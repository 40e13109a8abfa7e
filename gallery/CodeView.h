#pragma once

#include <QColor>
#include <QPlainTextEdit>

class CodeHighlighter;

/// A read-only C++ snippet, as high as its lines. Style sheets give it its colours through the properties.
class CodeView : public QPlainTextEdit
{
    Q_OBJECT
    Q_PROPERTY(QColor keywordColor READ keywordColor WRITE setKeywordColor)
    Q_PROPERTY(QColor typeColor READ typeColor WRITE setTypeColor)
    Q_PROPERTY(QColor textColor READ textColor WRITE setTextColor)
    Q_PROPERTY(QColor commentColor READ commentColor WRITE setCommentColor)

public:
    explicit CodeView(const QString& code, QWidget* parent = nullptr);

    QColor keywordColor() const;
    void setKeywordColor(const QColor& color);
    /// Class names of the library and of Qt.
    QColor typeColor() const;
    void setTypeColor(const QColor& color);
    /// String literals and numbers.
    QColor textColor() const;
    void setTextColor(const QColor& color);
    QColor commentColor() const;
    void setCommentColor(const QColor& color);

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void fitHeight();

    CodeHighlighter* m_highlighter;
};

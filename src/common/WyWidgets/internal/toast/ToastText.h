#pragma once

#include <QFontMetrics>
#include <QSize>
#include <QString>
#include <QTextLayout>

#include <memory>
#include <vector>

namespace WyWidgets {

/// Measures one text of a toast: in one line, and wrapped at any width. An empty text takes no room.
class ToastText
{
public:
    ToastText(const QFont& font, const QString& text);
    ~ToastText();

    bool isEmpty() const { return m_text.isEmpty(); }
    QSize oneLine() const;
    /// The size of QFontMetrics::boundingRect() with Qt::TextWordWrap.
    QSize wrapped(int width) const;
    /// At most the height of wrapped(width), and never growing with the width.
    int leastHeight(int width) const;

private:
    struct Lines
    {
        int count = 0;
        qreal naturalWidth = 0;
    };

    void findPieces() const;
    Lines breakLines(int width) const;
    int leastHeightOf(int lines) const;

    QFont m_font;
    QFontMetrics m_metrics;
    QString m_text;
    /// Only a whole measurement at a width tells how such a text is wrapped there.
    bool m_isUnruly;
    // Made when they are first needed. The layout is never ended: so the text stays shaped, and is only
    // broken into lines anew for another width.
    mutable std::unique_ptr<QTextLayout> m_layout;
    /// For each piece that cannot be broken, a line that starts with it.
    mutable std::vector<QTextLine> m_pieces;
    mutable int m_leastLineHeight = 0;
    /// False if glyphs of several fonts make some lines higher than others.
    mutable bool m_linesAreEqual = true;
};

} // namespace WyWidgets

#pragma once

#include <QFontMetrics>
#include <QSize>
#include <QString>

#include <memory>

class QTextLayout;

namespace WyWidgets {

/// Measures one text of a toast: in one line, and wrapped at any width. An empty text takes no room.
class ToastText
{
public:
    ToastText(const QFont& font, const QString& text);
    ~ToastText();

    bool isEmpty() const { return m_text.isEmpty(); }
    QSize oneLine() const;
    QSize wrapped(int width) const;
    /// At most the height of wrapped(width), much faster, and never growing with the width.
    int leastHeight(int width) const;

private:
    void prepareLayout() const;
    int countLines(int width) const;

    QFont m_font;
    QFontMetrics m_metrics;
    QString m_text;
    // Made when it is first needed. It shapes the text once and breaks it into lines for many widths.
    mutable std::unique_ptr<QTextLayout> m_layout;
    mutable qreal m_leastLineHeight = 0;
};

} // namespace WyWidgets

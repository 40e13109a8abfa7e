#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QString>
#include <QToolTip>

namespace WyTest {

/// Wrapping of tool tips as it is meant, measuring every beginning of every line.
inline QString plainWrap(QString text, int width)
{
    const QFontMetrics metrics(QToolTip::font());
    QString result;
    int i = 0;
    while (i < text.length()) {
        const int advance = metrics.horizontalAdvance(text.left(i + 2));
        ++i;
        if (advance <= width)
            continue;
        const int space = text.lastIndexOf(QLatin1Char(' '), i);
        const int cut = space > 0 ? space : i;
        result += text.left(cut) + QLatin1Char('\n');
        text = text.mid(cut + 1);
        if (cut >= text.length())
            break;
        i = 0;
    }
    return result + text;
}

/// Wrapping of check boxes as it is told: word by word, each measured with the line it may join.
inline QString wrappedPlainly(QString text, const QFont& font, int width)
{
    const QFontMetrics metrics(font);
    text.replace(QLatin1Char('\n'), QLatin1Char(' '));
    text += QLatin1Char(' ');
    QString word;
    QString line;
    QString result;
    for (QChar character : text) {
        word += character;
        if (!character.isSpace())
            continue;
        if (line.isEmpty()) {
            line += word;
        } else if (metrics.horizontalAdvance(line + word.trimmed()) <= width) {
            line += word;
        } else {
            result += line.trimmed() + QLatin1Char('\n');
            line = word;
        }
        word.clear();
    }
    return (result + line.trimmed()).trimmed();
}

} // namespace WyTest

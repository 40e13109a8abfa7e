#pragma once

#include <QFont>
#include <QString>

namespace WyWidgets {

/// Wraps a text at white space to lines of at most `width` pixels, joined by line feeds.
///
/// The text's own line feeds count as spaces. Each line holds as many words as fit: a word is taken while the
/// line with it, measured as one string, is no wider than `width`. The first word of a line is never
/// measured, so a wider one has the line to itself. White space inside a line is kept; lines and result are
/// trimmed, so that a second space right behind a break leaves an empty line.
QString wrapWords(QString text, const QFont& font, int width);

} // namespace WyWidgets

#pragma once

#include <QString>

namespace WyWidgets {

/// What a label shows of the text, which may be rich text: the words for those who cannot see it.
QString withoutMarkup(const QString& text);

/// The text as a button paints it: "&" marks a letter, "&&" is an ampersand.
QString withoutMnemonic(QString text);

} // namespace WyWidgets

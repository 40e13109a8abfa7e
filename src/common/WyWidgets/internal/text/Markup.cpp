#include "WyWidgets/internal/text/Markup.h"

#include <QTextDocumentFragment>

namespace WyWidgets {

QString withoutMarkup(const QString& text)
{
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

} // namespace WyWidgets

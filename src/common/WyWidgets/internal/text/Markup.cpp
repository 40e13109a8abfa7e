#include "WyWidgets/internal/text/Markup.h"

#include <QRegularExpression>
#include <QTextDocument>
#include <QTextDocumentFragment>

namespace WyWidgets {

QString withoutMarkup(const QString& text)
{
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

QString withoutMnemonic(QString text)
{
    return text.replace(QRegularExpression(QStringLiteral("&(.?)")), QStringLiteral("\\1"));
}

} // namespace WyWidgets

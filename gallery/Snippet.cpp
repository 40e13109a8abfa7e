#include "Snippet.h"

#include <QDir>
#include <QFile>
#include <QStringList>

#include <algorithm>

namespace {

int indentation(const QString& line)
{
    int spaces = 0;
    while (spaces < line.size() && line.at(spaces) == QLatin1Char(' '))
        ++spaces;
    return spaces;
}

QStringList linesBetween(const QStringList& lines, const QString& marker)
{
    const auto isMarker = [&](const QString& line) {
        return line.trimmed() == marker;
    };
    const auto first = std::find_if(lines.begin(), lines.end(), isMarker);
    if (first == lines.end())
        return {};
    const auto last = std::find_if(first + 1, lines.end(), isMarker);
    return QStringList(first + 1, last);
}

} // namespace

QString snippet(const QString& name)
{
    const QString marker = QStringLiteral("//! [%1]").arg(name);
    const QDir sources(QStringLiteral(":/snippets"));
    const QStringList files = sources.entryList(QDir::Files);
    for (const QString& file : files) {
        QFile source(sources.filePath(file));
        source.open(QIODevice::ReadOnly);
        QStringList lines =
            linesBetween(QString::fromUtf8(source.readAll()).split(QLatin1Char('\n')), marker);
        if (lines.isEmpty())
            continue;
        const int indented = indentation(lines.constFirst());
        for (QString& line : lines)
            line.remove(0, qMin(indented, indentation(line)));
        return lines.join(QLatin1Char('\n'));
    }
    return QString();
}

#pragma once

#include <QCache>
#include <QDateTime>
#include <QFileInfo>
#include <QString>

namespace WyWidgets {

/// What was made of a file, and of which version of it.
template <typename Content>
struct ReadFile
{
    qint64 modifiedMs;
    qint64 sizeBytes;
    Content content;
};

/// Calls `read` only for a file that the cache does not know in this version. `costOf` tells what keeping its
/// result costs.
template <typename Content, typename Read, typename Cost>
Content readOnce(QCache<QString, ReadFile<Content>>& cache, const QFileInfo& file, Read read, Cost costOf)
{
    const QString path = file.absoluteFilePath();
    const qint64 modifiedMs = file.lastModified().toMSecsSinceEpoch();
    const qint64 sizeBytes = file.size();
    const ReadFile<Content>* known = cache.object(path);
    if (known && known->modifiedMs == modifiedMs && known->sizeBytes == sizeBytes)
        return known->content;
    auto* fresh = new ReadFile<Content>{modifiedMs, sizeBytes, read()};
    Content content = fresh->content;
    cache.insert(path, fresh, costOf(content));
    return content;
}

} // namespace WyWidgets

#include "WyWidgets/internal/platform/LibraryFolder.h"

#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

namespace WyWidgets {

QString libraryFolder()
{
    Dl_info info;
    if (dladdr(reinterpret_cast<const void*>(&libraryFolder), &info) == 0 || !info.dli_fname)
        return QString();
    // Behind links, so that a link to the library elsewhere still leads to what was installed beside it.
    return QFileInfo(QFileInfo(QFile::decodeName(info.dli_fname)).canonicalFilePath()).path();
}

} // namespace WyWidgets

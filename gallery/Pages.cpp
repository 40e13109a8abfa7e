#include "Pages.h"

#include "pages/WelcomePage.h"

#include <QCoreApplication>

namespace {

template <typename Page>
GalleryPage* create()
{
    return new Page;
}

QString name(const char* text)
{
    return QCoreApplication::translate("Pages", text);
}

} // namespace

QVector<PageEntry> allPages()
{
    return {
        {name(QT_TRANSLATE_NOOP("Pages", "Welcome")), create<WelcomePage>},
    };
}

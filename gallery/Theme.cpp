#include "Theme.h"

#include <QApplication>
#include <QFile>

namespace Theme {

namespace {

QString s_current = QStringLiteral("light");

} // namespace

bool apply(const QString& name)
{
    QFile file(QStringLiteral(":/themes/%1.qss").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    s_current = name;
    qApp->setStyleSheet(QString::fromUtf8(file.readAll()));
    return true;
}

QString current()
{
    return s_current;
}

QIcon icon(const QString& name)
{
    const QString path = QStringLiteral(":/themes/icons/%1/%2%3.png");
    QIcon icon(path.arg(s_current, name, QString()));
    const QString selected = path.arg(s_current, name, QStringLiteral("-selected"));
    if (QFile::exists(selected))
        icon.addFile(selected, QSize(), QIcon::Selected);
    return icon;
}

} // namespace Theme

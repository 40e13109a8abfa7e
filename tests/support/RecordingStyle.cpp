#include "support/RecordingStyle.h"

#include <QVariant>
#include <QWidget>

namespace WyTest {

void RecordingStyle::polish(QWidget* widget)
{
    note(QStringLiteral("polish"), widget);
    QProxyStyle::polish(widget);
}

void RecordingStyle::unpolish(QWidget* widget)
{
    note(QStringLiteral("unpolish"), widget);
    QProxyStyle::unpolish(widget);
}

void RecordingStyle::note(const QString& call, const QWidget* widget)
{
    QStringList parts = {call, QString::fromLatin1(widget->metaObject()->className())};
    if (!widget->objectName().isEmpty())
        parts += widget->objectName();
    const QVariant active = widget->property("active");
    if (active.isValid())
        parts += QStringLiteral("active=") + active.toString();
    calls += parts.join(QLatin1Char(' '));
}

} // namespace WyTest

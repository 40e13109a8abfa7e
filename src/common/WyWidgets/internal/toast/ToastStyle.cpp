#include "WyWidgets/internal/toast/ToastStyle.h"

namespace WyWidgets::ToastStyle {

namespace {

const QLatin1String kBody("background: %1;border-radius: %2px; ");
const QLatin1String kDurationBar("background: rgba(%1, %2, %3, 100);border-radius: %4px;");
const QLatin1String kDurationBarChunk("background: rgba(%1, %2, %3, 255);border-bottom-left-radius: %4px; "
                                      "border-bottom-right-radius: %5px;");
const QLatin1String kSeparator("background: %1;");
const QLatin1String kText("color: %1;");

} // namespace

QString body(const QColor& background, int radius)
{
    return QString(kBody).arg(background.name()).arg(radius);
}

QString durationBar(const QColor& color, int radius)
{
    return QString(kDurationBar).arg(color.red()).arg(color.green()).arg(color.blue()).arg(radius);
}

QString durationBarChunk(const QColor& color, int radius, bool shrinks)
{
    return QString(kDurationBarChunk)
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(radius)
        .arg(shrinks ? 0 : radius);
}

QString separator(const QColor& color)
{
    return QString(kSeparator).arg(color.name());
}

QString text(const QColor& color)
{
    return QString(kText).arg(color.name());
}

} // namespace WyWidgets::ToastStyle

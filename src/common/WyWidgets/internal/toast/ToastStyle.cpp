#include "WyWidgets/internal/toast/ToastStyle.h"

namespace WyWidgets::ToastStyle {

namespace {

const QString kBody = QStringLiteral("background: %1;border-radius: %2px; ");
const QString kDurationBar = QStringLiteral("background: rgba(%1, %2, %3, 100);border-radius: %4px;");
const QString kDurationBarChunk =
    QStringLiteral("background: rgba(%1, %2, %3, 255);border-bottom-left-radius: %4px; "
                   "border-bottom-right-radius: %5px;");
const QString kSeparator = QStringLiteral("background: %1;");
const QString kText = QStringLiteral("color: %1;");

} // namespace

QString body(const QColor& background, int radius)
{
    return kBody.arg(background.name()).arg(radius);
}

QString durationBar(const QColor& color, int radius)
{
    return kDurationBar.arg(color.red()).arg(color.green()).arg(color.blue()).arg(radius);
}

QString durationBarChunk(const QColor& color, int radius, bool shrinks)
{
    return kDurationBarChunk.arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(radius)
        .arg(shrinks ? 0 : radius);
}

QString separator(const QColor& color)
{
    return kSeparator.arg(color.name());
}

QString text(const QColor& color)
{
    return kText.arg(color.name());
}

} // namespace WyWidgets::ToastStyle

#include "WyWidgets/internal/widgets/ActiveProperty.h"

#include <QPointer>
#include <QStyle>
#include <QVariant>
#include <QWidget>

namespace WyWidgets {

void setActiveProperty(QWidget* widget, bool active, QStyle* style)
{
    const QPointer<QWidget> guard(widget);
    widget->setProperty(kActiveProperty, active);
    if (guard)
        style->polish(widget);
}

} // namespace WyWidgets

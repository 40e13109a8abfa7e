#include "WyWidgets/internal/ActiveProperty.h"

#include <QStyle>
#include <QVariant>
#include <QWidget>

namespace WyWidgets {

void setActiveProperty(QWidget* widget, bool active, QStyle* style)
{
    widget->setProperty(kActiveProperty, active);
    style->polish(widget);
}

} // namespace WyWidgets

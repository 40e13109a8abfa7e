#include "WyWidgets/internal/accessibility/AccessibleSlider.h"

#include "WyWidgets/wycontrol/WyHandleSlider.h"

#include <algorithm>

namespace WyWidgets {

AccessibleSlider::AccessibleSlider(WyHandleSlider* slider) : QAccessibleWidget(slider, QAccessible::Slider) {}

void AccessibleSlider::tellValue(WyHandleSlider* slider)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleValueChangeEvent event(slider, slider->GetSliderPos());
    QAccessible::updateAccessibility(&event);
}

void* AccessibleSlider::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

// The handle is a part of the picture only.
int AccessibleSlider::childCount() const
{
    return 0;
}

QAccessibleInterface* AccessibleSlider::child(int) const
{
    return nullptr;
}

QVariant AccessibleSlider::currentValue() const
{
    return slider()->GetSliderPos();
}

void AccessibleSlider::setCurrentValue(const QVariant& value)
{
    slider()->choosePos(value.toLongLong());
}

QVariant AccessibleSlider::maximumValue() const
{
    return slider()->m_maximum;
}

QVariant AccessibleSlider::minimumValue() const
{
    return qint64(0);
}

QVariant AccessibleSlider::minimumStepSize() const
{
    return qint64(1);
}

WyHandleSlider* AccessibleSlider::slider() const
{
    return static_cast<WyHandleSlider*>(widget());
}

} // namespace WyWidgets

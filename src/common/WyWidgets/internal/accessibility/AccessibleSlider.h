#pragma once

#include <QAccessibleWidget>

namespace WyWidgets {

class WyHandleSlider;

/// The slider as assistive tools see it: one part with a value from 0 to the maximum. A value that they set
/// counts like one that the user drags to.
class AccessibleSlider : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleSlider(WyHandleSlider* slider);

    /// Tells that the value may have changed.
    static void tellValue(WyHandleSlider* slider);

    void* interface_cast(QAccessible::InterfaceType type) override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

private:
    WyHandleSlider* slider() const;
};

} // namespace WyWidgets

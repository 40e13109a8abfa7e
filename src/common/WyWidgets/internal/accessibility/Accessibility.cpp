#include "WyWidgets/internal/accessibility/Accessibility.h"

#include "WyWidgets/internal/accessibility/AccessibleParts.h"
#include "WyWidgets/internal/accessibility/AccessibleSlider.h"
#include "WyWidgets/wycontrol/WyFlatTab.h"
#include "WyWidgets/wycontrol/WyFlatVTab.h"
#include "WyWidgets/wycontrol/WyHandleSlider.h"

#include <QAccessible>
#include <QPushButton>

#include <algorithm>
#include <iterator>

namespace WyWidgets {

namespace {

using Make = QAccessibleInterface* (*)(QWidget*);

struct Kind
{
    QLatin1String className;
    Make make;
};

template <QAccessible::Role role>
QAccessibleInterface* plain(QWidget* widget)
{
    return new QAccessibleWidget(widget, role);
}

template <QAccessible::Role role>
QAccessibleInterface* busy(QWidget* widget)
{
    return new AccessibleBusyWidget(widget, role);
}

QAccessibleInterface* slider(QWidget* widget)
{
    return new AccessibleSlider(static_cast<WyHandleSlider*>(widget));
}

QAccessibleInterface* tabStrip(QWidget* widget)
{
    return new AccessibleTabStrip(widget);
}

/// The tabs are plain push buttons; only their strip tells them from others.
QAccessibleInterface* tab(QWidget* widget)
{
    const QWidget* strip = widget->parentWidget();
    const bool isTab = qobject_cast<const WyFlatTab*>(strip) || qobject_cast<const WyFlatVTab*>(strip);
    return isTab ? new AccessibleTab(static_cast<QPushButton*>(widget)) : nullptr;
}

const Kind kKinds[] = {
    {QLatin1String("QPushButton"), tab},
    {QLatin1String("WyWidgets::WyErrorWidget"), plain<QAccessible::AlertMessage>},
    {QLatin1String("WyWidgets::WyFlatTab"), tabStrip},
    {QLatin1String("WyWidgets::WyFlatVTab"), tabStrip},
    {QLatin1String("WyWidgets::WyGifLabel"), busy<QAccessible::Animation>},
    {QLatin1String("WyWidgets::WyHandleSlider"), slider},
    {QLatin1String("WyWidgets::WyLoadBox"), busy<QAccessible::Animation>},
    {QLatin1String("WyWidgets::WyMoveableFrame"), plain<QAccessible::Splitter>},
    {QLatin1String("WyWidgets::WySimpleToast"), plain<QAccessible::AlertMessage>},
    {QLatin1String("WyWidgets::WyTipWidget"), plain<QAccessible::ToolTip>},
    {QLatin1String("WyWidgets::WyToast"), plain<QAccessible::AlertMessage>},
    {QLatin1String("WyWidgets::WyToastWidget"), plain<QAccessible::AlertMessage>},
    {QLatin1String("WyWidgets::WyWaitingBar"), busy<QAccessible::ProgressBar>},
    {QLatin1String("WyWidgets::WyWaitingSpinnerWidget"), busy<QAccessible::Animation>},
};

/// Qt asks for the object's class and then for each of its bases, until it gets an interface.
QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    if (!object || !object->isWidgetType())
        return nullptr;
    const auto kind = std::find_if(std::begin(kKinds), std::end(kKinds),
                                   [&](const Kind& candidate) { return candidate.className == className; });
    return kind != std::end(kKinds) ? kind->make(static_cast<QWidget*>(object)) : nullptr;
}

/// For as long as the library is loaded.
class Offer
{
public:
    Offer() { QAccessible::installFactory(makeInterface); }
    ~Offer() { QAccessible::removeFactory(makeInterface); }
};

void tell(QWidget* widget, QAccessible::Event type)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(widget, type);
    QAccessible::updateAccessibility(&event);
}

} // namespace

void offerAccessibility()
{
    static const Offer offer;
}

void tellSelection(QAbstractButton* tab)
{
    tell(tab, QAccessible::Selection);
}

void tellAlert(QWidget* message)
{
    tell(message, QAccessible::Alert);
}

} // namespace WyWidgets

#include "WyWidgets/internal/accessibility/AccessibleParts.h"

#include "WyWidgets/internal/text/Markup.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QTimer>

#include <algorithm>

namespace WyWidgets {

QString AccessibleBusyWidget::text(QAccessible::Text text) const
{
    QString own = QAccessibleWidget::text(text);
    if (text != QAccessible::Name || !own.isEmpty())
        return own;
    return QCoreApplication::translate("WyWidgets::AccessibleBusyWidget", "Busy");
}

QAccessible::State AccessibleBusyWidget::state() const
{
    const auto timers = widget()->findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    QAccessible::State state = QAccessibleWidget::state();
    state.busy =
        std::any_of(timers.begin(), timers.end(), [](const QTimer* timer) { return timer->isActive(); });
    return state;
}

AccessibleTabStrip::AccessibleTabStrip(QWidget* strip) : QAccessibleWidget(strip, QAccessible::PageTabList) {}

int AccessibleTabStrip::childCount() const
{
    return tabs().size();
}

QAccessibleInterface* AccessibleTabStrip::child(int index) const
{
    return QAccessible::queryAccessibleInterface(tabs().value(index));
}

int AccessibleTabStrip::indexOfChild(const QAccessibleInterface* child) const
{
    return child ? tabs().indexOf(qobject_cast<QPushButton*>(child->object())) : -1;
}

QList<QPushButton*> AccessibleTabStrip::tabs() const
{
    return widget()->findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly);
}

AccessibleTab::AccessibleTab(QPushButton* tab) : QAccessibleWidget(tab, QAccessible::PageTab) {}

QString AccessibleTab::text(QAccessible::Text text) const
{
    QString own = QAccessibleWidget::text(text);
    if (!own.isEmpty())
        return own;
    if (text == QAccessible::Name)
        return withoutMnemonic(button()->text());
    if (text == QAccessible::Accelerator)
        return button()->shortcut().toString(QKeySequence::NativeText);
    return own;
}

QAccessible::State AccessibleTab::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.selectable = true;
    state.selected = button()->isChecked();
    return state;
}

QStringList AccessibleTab::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (button()->isEnabled())
        names.prepend(pressAction());
    return names;
}

void AccessibleTab::doAction(const QString& actionName)
{
    if (actionName == pressAction())
        button()->click();
    else
        QAccessibleWidget::doAction(actionName);
}

QPushButton* AccessibleTab::button() const
{
    return static_cast<QPushButton*>(widget());
}

} // namespace WyWidgets

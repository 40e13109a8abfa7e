#pragma once

#include <QAccessibleWidget>

class QPushButton;

namespace WyWidgets {

/// What shows by moving that work is under way: busy while a timer of its own runs. Without a name it is
/// "Busy".
class AccessibleBusyWidget : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    QString text(QAccessible::Text text) const override;
    QAccessible::State state() const override;
};

/// A strip of tabs. Its children are the tabs; the markers that glide are no parts to speak of.
class AccessibleTabStrip : public QAccessibleWidget
{
public:
    explicit AccessibleTabStrip(QWidget* strip);

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

private:
    QList<QPushButton*> tabs() const;
};

/// A tab, which is a push button: it can be pressed, and is selected while it is checked.
class AccessibleTab : public QAccessibleWidget
{
public:
    explicit AccessibleTab(QPushButton* tab);

    QString text(QAccessible::Text text) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;

private:
    QPushButton* button() const;
};

} // namespace WyWidgets

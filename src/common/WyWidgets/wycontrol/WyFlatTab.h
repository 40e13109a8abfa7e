#pragma once

#include "WyWidgets/WyExport.h"

#include <QButtonGroup>
#include <QPointer>
#include <QWidget>

class QAbstractButton;
class QHBoxLayout;
class QLabel;
class QPropertyAnimation;

namespace WyWidgets {

/// A horizontal strip of tabs with a short underline that glides to the selected one.
///
/// Style sheets give it its look: the tabs are checkable QPushButtons (":checked"), the underline is a label
/// of 20 x 3 px named "label_tab". The underline lies below the tabs, on the last but one pixel rows of the
/// selected one, so tabs need a transparent background for it to show. Tabs take no keyboard focus.
///
/// A tab's index is its place in the order of adding. It stays the same when the host deletes another tab,
/// but AddTab(), SelectTab() and UpdateTabText() go by the number of tabs that are left: a new tab may share
/// the index of another one, and the last ones may be out of range.
class WYWIDGETS_EXPORT WyFlatTab : public QWidget
{
    Q_OBJECT

public:
    /// A strip without tabs.
    explicit WyFlatTab(QWidget* parent = nullptr);

    /// Appends a tab. No tab is selected until SelectTab() or a click.
    void AddTab(const QString& text);
    /// Selects the tab and moves the underline at once; emits nothing. An index out of range does nothing.
    void SelectTab(int index);
    /// The selected tab's index, -1 if none is selected.
    int CurrentSelect() const;
    /// An index out of range does nothing.
    void UpdateTabText(int index, const QString& text);

Q_SIGNALS:
    /// The user clicked the tab, also when it was selected already.
    void SignalSelectChanged(int nIndex);

public Q_SLOTS:
    /// Places the underline under the selected tab at once; without a selected tab it stays where it is.
    void SlotUpdateLayout();
    /// Lets the underline glide to the tab and emits SignalSelectChanged().
    void SlotGroupButtonClicked(int);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void createUnderline();
    QAbstractButton* tabAt(int index) const;
    QRect underlineRect(const QAbstractButton& tab) const;
    void moveUnderline(const QAbstractButton* tab, void (*move)(QLabel*, QPropertyAnimation*, const QRect&));

    QPointer<QHBoxLayout> m_layout;
    QButtonGroup m_group;
    QPointer<QLabel> m_underline;
    QPointer<QPropertyAnimation> m_underlineAnimation;
};

} // namespace WyWidgets

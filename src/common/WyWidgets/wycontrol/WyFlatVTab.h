#pragma once

#include "WyWidgets/WyExport.h"

#include <QButtonGroup>
#include <QFrame>
#include <QPointer>

class QAbstractButton;
class QLabel;
class QPropertyAnimation;
class QVBoxLayout;

namespace WyWidgets {

/// A vertical list of tabs with a thin bar and a highlight that glide to the selected one.
///
/// Style sheets give it its look: the tabs are checkable QPushButtons (":checked"), the bar at the left edge
/// of the selected one is a label of 3 x 20 px named "label_line", the highlight behind it one of 156 x 30 px
/// named "label_rect". Tabs lie above both, so they need a transparent background for the highlight to show.
/// The list paints a style-sheet background. Its user selects by pointer or keyboard (Space; Return is left
/// to the default button of a dialog); a host that wants to start with a selection checks a tab's button
/// before it shows the list.
class WYWIDGETS_EXPORT WyFlatVTab : public QFrame
{
    Q_OBJECT

public:
    /// A list without tabs.
    explicit WyFlatVTab(QWidget* parent = nullptr);

    /// Appends a tab; its index is the number of tabs before it.
    void AddTab(const QString& text);
    /// Does nothing: this list is driven by its user alone.
    void SelectTab(int index);

Q_SIGNALS:
    /// The user clicked the tab, also when it was selected already.
    void SignalSelectChanged(int nIndex);

public Q_SLOTS:
    /// Lets bar and highlight glide to the tab and emits SignalSelectChanged().
    void SlotGroupButtonClicked(int);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void createMarkers();
    void moveMarkers(const QAbstractButton* tab, void (*move)(QLabel*, QPropertyAnimation*, const QRect&));

    QPointer<QVBoxLayout> m_layout;
    QButtonGroup m_group;
    QPointer<QLabel> m_bar;
    QPointer<QPropertyAnimation> m_barAnimation;
    QPointer<QLabel> m_highlight;
    QPointer<QPropertyAnimation> m_highlightAnimation;
};

} // namespace WyWidgets

#include "WyWidgets/wycontrol/WyFlatTab.h"

#include "WyWidgets/internal/accessibility/Accessibility.h"
#include "WyWidgets/internal/widgets/LayoutWatcher.h"
#include "WyWidgets/internal/widgets/TabMarkers.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPropertyAnimation>
#include <QPushButton>

namespace WyWidgets {

namespace {

constexpr int kTabSpacingPx = 20;
constexpr int kTabHeightPx = 32;
constexpr int kMinimumTabWidthPx = 40;
constexpr QSize kUnderlineSizePx(20, 3);
constexpr int kUnderlineTopFromTabEndPx = 4;

} // namespace

WyFlatTab::WyFlatTab(QWidget* parent) : QWidget(parent)
{
    offerAccessibility();
    m_layout = new QHBoxLayout(this);
    m_layout->setSpacing(kTabSpacingPx);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setAlignment(Qt::AlignCenter);
    createUnderline();
    m_group.setExclusive(true);
    connect(&m_group, SIGNAL(buttonClicked(int)), this, SLOT(SlotGroupButtonClicked(int)));
    new LayoutWatcher(this, [this] { moveUnderline(m_group.checkedButton(), settleMarker); });
}

void WyFlatTab::createUnderline()
{
    m_underline = createMarker(this, QStringLiteral("label_tab"), kUnderlineSizePx, QPoint(0, 0));
    m_underlineAnimation = createGlide(m_underline, this);
}

void WyFlatTab::AddTab(const QString& text)
{
    QPushButton* tab = addTabButton(this, m_group, m_layout, text);
    tab->setFocusPolicy(Qt::NoFocus);
    tab->setFixedHeight(kTabHeightPx);
    tab->setMinimumWidth(kMinimumTabWidthPx);
}

void WyFlatTab::SelectTab(int index)
{
    QAbstractButton* tab = tabAt(index);
    if (!tab)
        return;
    tab->setChecked(true);
    SlotUpdateLayout();
}

int WyFlatTab::CurrentSelect() const
{
    return m_group.checkedId();
}

void WyFlatTab::UpdateTabText(int index, const QString& text)
{
    if (QAbstractButton* tab = tabAt(index))
        tab->setText(text);
}

void WyFlatTab::SlotUpdateLayout()
{
    moveUnderline(m_group.checkedButton(), placeMarker);
}

void WyFlatTab::SlotGroupButtonClicked(int id)
{
    const QAbstractButton* tab = tabWithId(m_group, id);
    if (!tab)
        return;
    const QPointer<WyFlatTab> alive(this); // handlers of the glide may delete it
    moveUnderline(tab, glideMarker);
    if (alive)
        emit SignalSelectChanged(id);
}

void WyFlatTab::resizeEvent(QResizeEvent* event)
{
    SlotUpdateLayout();
    QWidget::resizeEvent(event);
}

// Null for an index out of range and for a tab that the host has deleted. Buttons of the host's that joined
// the group have negative ids.
QAbstractButton* WyFlatTab::tabAt(int index) const
{
    return index >= 0 && index < m_group.buttons().size() ? m_group.button(index) : nullptr;
}

QRect WyFlatTab::underlineRect(const QAbstractButton& tab) const
{
    const QRect place = tab.geometry();
    const int x = place.center().x() - m_underline->width() / 2;
    const int y = place.y() + place.height() - kUnderlineTopFromTabEndPx;
    return QRect(QPoint(x, y), m_underline->size());
}

void WyFlatTab::moveUnderline(const QAbstractButton* tab,
                              void (*move)(QLabel*, QPropertyAnimation*, const QRect&))
{
    if (tab && m_underline)
        move(m_underline, m_underlineAnimation, underlineRect(*tab));
}

} // namespace WyWidgets

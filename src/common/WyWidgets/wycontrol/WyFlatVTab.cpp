#include "WyWidgets/wycontrol/WyFlatVTab.h"

#include "WyWidgets/internal/accessibility/Accessibility.h"
#include "WyWidgets/internal/widgets/LayoutWatcher.h"
#include "WyWidgets/internal/widgets/TabMarkers.h"

#include <QLabel>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QVBoxLayout>

namespace WyWidgets {

namespace {

constexpr int kMarginPx = 16;
constexpr int kTabSpacingPx = 4;
constexpr int kTabHeightPx = 30;
constexpr int kMinimumTabWidthPx = 156;
constexpr QSize kBarSizePx(3, 20);
constexpr QPoint kFirstBarPosition(15, 20);
constexpr QSize kHighlightSizePx(156, 30);
constexpr QPoint kFirstHighlightPosition(16, 16);
// The highlight's fixed size holds it to 156 x 30 on its way to this.
constexpr QSize kHighlightTargetSizePx(160, 40);

// Straddles the tab's left edge, centred on its middle row.
QRect barRect(const QRect& tab)
{
    const int middle = tab.center().y();
    return QRect(QPoint(tab.x() - 1, middle - 10), QPoint(tab.x() + 1, middle + 9));
}

QRect highlightRect(const QRect& tab)
{
    return QRect(tab.topLeft(), kHighlightTargetSizePx);
}

} // namespace

WyFlatVTab::WyFlatVTab(QWidget* parent) : QFrame(parent)
{
    offerAccessibility();
    setAttribute(Qt::WA_StyledBackground);
    m_layout = new QVBoxLayout(this);
    m_layout->setContentsMargins(kMarginPx, kMarginPx, kMarginPx, kMarginPx);
    m_layout->setSpacing(kTabSpacingPx);
    m_layout->setAlignment(Qt::AlignTop);
    createMarkers();
    m_group.setExclusive(true);
    connect(&m_group, SIGNAL(buttonClicked(int)), this, SLOT(SlotGroupButtonClicked(int)));
    m_bar->raise();
    new LayoutWatcher(this, [this] { moveMarkers(m_group.checkedButton(), settleMarker); });
}

void WyFlatVTab::createMarkers()
{
    m_bar = createMarker(this, QStringLiteral("label_line"), kBarSizePx, kFirstBarPosition);
    m_barAnimation = createGlide(m_bar, this);
    m_highlight = createMarker(this, QStringLiteral("label_rect"), kHighlightSizePx, kFirstHighlightPosition);
    m_highlightAnimation = createGlide(m_highlight, this);
}

void WyFlatVTab::AddTab(const QString& text)
{
    QPushButton* tab = addTabButton(this, m_group, m_layout, text);
    tab->setFixedHeight(kTabHeightPx);
    tab->setMinimumWidth(kMinimumTabWidthPx);
}

void WyFlatVTab::SelectTab(int) {}

void WyFlatVTab::SlotGroupButtonClicked(int id)
{
    const QAbstractButton* tab = tabWithId(m_group, id);
    if (!tab)
        return;
    const QPointer<WyFlatVTab> alive(this); // handlers of the glides may delete it
    moveMarkers(tab, glideMarker);
    if (alive)
        emit SignalSelectChanged(id);
}

void WyFlatVTab::resizeEvent(QResizeEvent* event)
{
    moveMarkers(m_group.checkedButton(), placeMarker);
    QFrame::resizeEvent(event);
}

void WyFlatVTab::moveMarkers(const QAbstractButton* tab,
                             void (*move)(QLabel*, QPropertyAnimation*, const QRect&))
{
    if (!tab)
        return;
    const QPointer<WyFlatVTab> alive(this);
    const QRect place = tab->geometry();
    move(m_bar, m_barAnimation, barRect(place));
    if (alive)
        move(m_highlight, m_highlightAnimation, highlightRect(place));
}

} // namespace WyWidgets

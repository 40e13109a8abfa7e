#include "WyWidgets/layout/WyFlowLayout.h"

#include "WyWidgets/internal/arithmetic/Saturated.h"

#include <QPointer>
#include <QWidget>

#include <algorithm>

namespace WyWidgets {

namespace {

/// Edges that no int holds stop at the nearest one that does.
QRect rectAt(qint64 x, qint64 y, QSize size)
{
    return QRect(QPoint(saturated<int>(x), saturated<int>(y)),
                 QPoint(saturated<int>(x + size.width() - 1), saturated<int>(y + size.height() - 1)));
}

/// Items lie apart in memory, and waiting for each would take a tenth of the time that its widget needs to
/// move. The processor fetches one that is a few places ahead meanwhile; null is no harm.
void fetchAhead([[maybe_unused]] const QLayoutItem* item)
{
#ifdef __GNUC__
    __builtin_prefetch(item);
#endif
}

constexpr int kItemsAhead = 2;

} // namespace

/// Measures items and the gaps that follow them. Where the layout and its parent leave a gap to the widget
/// (-1), the widget's style is asked, once for each run of widgets with the same style.
class WyFlowLayout::MeasuringTape
{
public:
    explicit MeasuringTape(Spacing common) : m_common(common), m_current(common) {}

    Measure measure(QLayoutItem* item) { return {item->sizeHint(), gapAfter(item)}; }

private:
    Spacing gapAfter(QLayoutItem* item)
    {
        if (m_common.horizontal != -1 && m_common.vertical != -1)
            return m_common;
        // A spacer or a nested layout has no style to ask.
        const QWidget* widget = item->widget();
        const QStyle* style = widget ? widget->style() : nullptr;
        if (style != m_style || !m_asked)
            ask(style);
        return m_current;
    }

    void ask(const QStyle* style)
    {
        m_style = style;
        m_asked = true;
        m_current = m_common;
        if (m_current.horizontal == -1)
            m_current.horizontal = gapOf(style, Qt::Horizontal);
        if (m_current.vertical == -1)
            m_current.vertical = gapOf(style, Qt::Vertical);
    }

    static int gapOf(const QStyle* style, Qt::Orientation orientation)
    {
        if (!style)
            return 0;
        return style->layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton, orientation);
    }

    const Spacing m_common;
    Spacing m_current;
    const QStyle* m_style = nullptr;
    bool m_asked = false;
};

WyFlowLayout::WyFlowLayout(QWidget* parent, int margin, int hSpacing, int vSpacing)
    : QLayout(parent), m_hSpacing(hSpacing), m_vSpacing(vSpacing)
{
    setContentsMargins(margin, margin, margin, margin);
}

WyFlowLayout::WyFlowLayout(int margin, int hSpacing, int vSpacing)
    : m_hSpacing(hSpacing), m_vSpacing(vSpacing)
{
    setContentsMargins(margin, margin, margin, margin);
}

WyFlowLayout::~WyFlowLayout()
{
    // Taken out first: an item's destructor may come back to the layout.
    while (QLayoutItem* item = WyFlowLayout::takeAt(0))
        delete item;
}

void WyFlowLayout::addItem(QLayoutItem* item)
{
    if (!item)
        return;
    QLayout* nested = item->layout();
    if (nested && nested->parent() != this && !adoptLayout(nested))
        return;
    m_items.append(item);
    invalidate();
}

int WyFlowLayout::count() const
{
    return m_items.size();
}

QLayoutItem* WyFlowLayout::itemAt(int index) const
{
    return m_items.value(index, nullptr);
}

QLayoutItem* WyFlowLayout::takeAt(int index)
{
    if (index < 0 || index >= m_items.size())
        return nullptr;
    QLayoutItem* item = m_items.takeAt(index);
    QLayout* nested = item->layout();
    if (nested && nested->parent() == this)
        nested->setParent(nullptr);
    // The destructor comes here, too, and then means the layout's own.
    invalidate(); // NOLINT(clang-analyzer-optin.cplusplus.VirtualCall)
    return item;
}

int WyFlowLayout::horizontalSpacing() const
{
    return m_hSpacing >= 0 ? m_hSpacing : smartSpacing(QStyle::PM_LayoutHorizontalSpacing);
}

int WyFlowLayout::verticalSpacing() const
{
    return m_vSpacing >= 0 ? m_vSpacing : smartSpacing(QStyle::PM_LayoutVerticalSpacing);
}

int WyFlowLayout::smartSpacing(QStyle::PixelMetric metric) const
{
    if (!parent())
        return -1;
    if (parent()->isWidgetType()) {
        const auto* widget = static_cast<QWidget*>(parent());
        return widget->style()->pixelMetric(metric, nullptr, widget);
    }
    const auto* layout = qobject_cast<QLayout*>(parent());
    return layout ? layout->spacing() : -1;
}

Qt::Orientations WyFlowLayout::expandingDirections() const
{
    return Qt::Horizontal;
}

bool WyFlowLayout::hasHeightForWidth() const
{
    return true;
}

int WyFlowLayout::heightForWidth(int width) const
{
    const Spacing spacing = currentSpacing();
    measureItems(spacing);
    if (m_measuredHeight && m_measuredHeight->width == width)
        return m_measuredHeight->height;
    // No room is no room; a rectangle ends one pixel before its width, which has to be a number, too.
    const QRect room(0, 0, qMax(width, -QWIDGETSIZE_MAX), 0);
    const int height = arrange(room, spacing, Pass::Measure);
    if (!m_measures.isEmpty())
        m_measuredHeight = MeasuredHeight{width, height};
    return height;
}

void WyFlowLayout::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    const Spacing spacing = currentSpacing();
    measureItems(spacing);
    arrange(rect, spacing, Pass::Place);
}

QSize WyFlowLayout::sizeHint() const
{
    return minimumSize();
}

QSize WyFlowLayout::minimumSize() const
{
    QSize largest(-1, -1);
    for (int i = 0; i < m_items.size(); ++i)
        largest = largest.expandedTo(m_items.at(i)->minimumSize());
    const QMargins margins = contentsMargins();
    return QSize(saturated<int>(qint64(largest.width()) + margins.left() + margins.right()),
                 saturated<int>(qint64(largest.height()) + margins.top() + margins.bottom()));
}

void WyFlowLayout::invalidate()
{
    ++m_changes;
    m_measures.clear();
    m_measuredHeight.reset();
    QLayout::invalidate();
}

WyFlowLayout::Spacing WyFlowLayout::currentSpacing() const
{
    return {horizontalSpacing(), verticalSpacing()};
}

/// Measures the items anew unless nothing has changed since the last time.
void WyFlowLayout::measureItems(Spacing spacing) const
{
    if (m_measures.size() == m_items.size() && m_measuredSpacing == spacing)
        return;
    m_measures.clear();
    m_measuredHeight.reset();
    m_measuredSpacing = spacing;
    // A nested layout may change without telling this one before the next event, so nothing is kept with one.
    if (std::any_of(m_items.cbegin(), m_items.cend(), [](QLayoutItem* item) { return item->layout(); }))
        return;
    // Asking a widget for its size may polish it, and a handler of the host may then change the items or what
    // was measured of them. That drops these measures, and arrange() measures as it goes.
    const quint64 changes = m_changes;
    MeasuringTape tape(spacing);
    QVector<Measure> measures;
    measures.reserve(m_items.size());
    for (int i = 0; i < m_items.size(); ++i)
        measures.append(tape.measure(m_items.at(i)));
    if (changes == m_changes)
        m_measures = measures;
}

/// Walks the items row by row and returns the height they use, margins included.
int WyFlowLayout::arrange(const QRect& rect, Spacing spacing, Pass pass) const
{
    const QMargins margins = contentsMargins();
    // In 64 bits, which no sum of sizes leaves.
    const qint64 left = qint64(rect.x()) + margins.left();
    const qint64 end = qint64(rect.right()) - margins.right();
    const QPointer<const WyFlowLayout> guard(this);
    MeasuringTape tape(spacing);
    qint64 x = left;
    qint64 y = qint64(rect.y()) + margins.top();
    qint64 lineHeight = 0;
    // By index against the live list: placing a widget runs its resize handler, which may add, remove or
    // delete items of this layout, or the layout itself.
    for (int i = 0; i < m_items.size(); ++i) {
        QLayoutItem* item = m_items.at(i);
        // Such a change also drops the measures; the rest of the walk then measures as it goes.
        const Measure m = i < m_measures.size() ? m_measures.at(i) : tape.measure(item);
        if (x + m.size.width() > end && lineHeight > 0) {
            x = left;
            y += lineHeight + m.gap.vertical;
            lineHeight = 0;
        }
        if (pass == Pass::Place) {
            fetchAhead(m_items.value(i + kItemsAhead));
            item->setGeometry(rectAt(x, y, m.size));
            if (!guard)
                return 0;
        }
        x += qint64(m.size.width()) + m.gap.horizontal;
        lineHeight = qMax<qint64>(lineHeight, m.size.height());
    }
    return saturated<int>(y + lineHeight - rect.y() + margins.bottom());
}

} // namespace WyWidgets

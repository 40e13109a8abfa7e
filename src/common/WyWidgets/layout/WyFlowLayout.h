#pragma once

#include "WyWidgets/WyExport.h"

#include <QLayout>
#include <QList>
#include <QStyle>
#include <QVector>

#include <optional>

namespace WyWidgets {

/// Places its items left to right at their preferred sizes and wraps them into rows, like words in a
/// paragraph.
///
/// The height follows from the width (hasHeightForWidth()). The layout owns its items; their widgets belong
/// to the parent widget, as with any Qt layout. It claims extra width but no extra height. Rows are not
/// mirrored in right-to-left layouts. Hidden widgets take no room of their own but keep the spacing that
/// follows them.
class WYWIDGETS_EXPORT WyFlowLayout : public QLayout
{
    Q_OBJECT

public:
    /// Margin and spacings are in pixels. A margin of -1 is the style's; a negative spacing is taken from the
    /// parent: the style's for a parent widget, spacing() for a parent layout.
    explicit WyFlowLayout(QWidget* parent, int margin = -1, int hSpacing = -1, int vSpacing = -1);
    /// The same for a layout that goes into another one.
    explicit WyFlowLayout(int margin = -1, int hSpacing = -1, int vSpacing = -1);
    ~WyFlowLayout() override;

    /// Takes ownership of the item; null is ignored, and so is a layout that belongs to somebody else.
    void addItem(QLayoutItem* item) override;
    /// The number of items.
    int count() const override;
    /// Null when the index is out of range.
    QLayoutItem* itemAt(int index) const override;
    /// The caller owns the item; null when the index is out of range.
    QLayoutItem* takeAt(int index) override;

    /// The gap between two items of a row; -1 when each widget's style decides.
    int horizontalSpacing() const;
    /// The gap between two rows; -1 when each widget's style decides.
    int verticalSpacing() const;
    /// What a negative spacing stands for: the metric of a parent widget's style, spacing() of a parent
    /// layout whatever the metric, or -1 without a parent.
    int smartSpacing(QStyle::PixelMetric metric) const;

    /// Horizontal.
    Qt::Orientations expandingDirections() const override;
    /// True.
    bool hasHeightForWidth() const override;
    /// The height that the rows and the margins need at this width, in pixels.
    int heightForWidth(int width) const override;
    /// Places the items in the rectangle less the margins, from the top; they may reach below it.
    void setGeometry(const QRect& rect) override;
    /// Same as minimumSize(). An empty layout answers its margins less one.
    QSize sizeHint() const override;
    /// The largest item and the margins.
    QSize minimumSize() const override;
    /// Forgets what it has measured.
    void invalidate() override;

private:
    struct Spacing
    {
        int horizontal;
        int vertical;
        bool operator==(const Spacing& other) const
        {
            return horizontal == other.horizontal && vertical == other.vertical;
        }
    };
    /// What placing needs to know of an item.
    struct Measure
    {
        QSize size;
        Spacing gap;
    };
    class MeasuringTape;
    enum class Pass { Measure, Place };
    /// The answer of the last heightForWidth(), valid as long as the measures are.
    struct MeasuredHeight
    {
        int width;
        int height;
    };

    Spacing currentSpacing() const;
    void measureItems(Spacing spacing) const;
    int arrange(const QRect& rect, Spacing spacing, Pass pass) const;

    QList<QLayoutItem*> m_items;
    int m_hSpacing = -1;
    int m_vSpacing = -1;
    /// Counts invalidations.
    quint64 m_changes = 0;
    /// One per item while nothing has changed since they were measured, else empty.
    mutable QVector<Measure> m_measures;
    mutable Spacing m_measuredSpacing{-1, -1};
    mutable std::optional<MeasuredHeight> m_measuredHeight;
};

} // namespace WyWidgets

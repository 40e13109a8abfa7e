#include "WyWidgets/internal/widgets/Dot.h"

#include "WyWidgets/internal/widgets/OwnTexts.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>

namespace WyWidgets {

namespace {

/// Gives the layout of a control its margins, mirrored while the control runs from right to left.
class MirroredMargins : public QObject
{
public:
    MirroredMargins(QLayout* layout, const QMargins& margins)
        : QObject(layout), m_layout(layout), m_margins(margins)
    {
        layout->parentWidget()->installEventFilter(this);
        apply();
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::LayoutDirectionChange)
            apply();
        return false;
    }

private:
    void apply()
    {
        const QMargins mirrored(m_margins.right(), m_margins.top(), m_margins.left(), m_margins.bottom());
        m_layout->setContentsMargins(m_layout->parentWidget()->isRightToLeft() ? mirrored : m_margins);
    }

    QLayout* m_layout;
    QMargins m_margins;
};

QLabel* createDot(QWidget* control, int sizePx)
{
    auto* dot = new QLabel(control);
    dot->setObjectName(QStringLiteral("label_dot"));
    dot->setFixedSize(sizePx, sizePx);
    OwnTexts::of(dot)->setNameAndToolTip([] { return QCoreApplication::translate("WyWidgets::Dot", "New"); });
    return dot;
}

} // namespace

QLabel* placeDot(QWidget* control, QLabel* dot, int sizePx, const QMargins& marginsPx)
{
    if (!control->layout()) {
        auto* grid = new QGridLayout(control);
        grid->setSpacing(0);
        new MirroredMargins(grid, marginsPx);
    }
    auto* grid = qobject_cast<QGridLayout*>(control->layout());
    if (!grid)
        return dot;
    if (!dot)
        dot = createDot(control, sizePx);
    if (grid->indexOf(dot) < 0)
        grid->addWidget(dot, 0, 1, Qt::AlignRight | Qt::AlignTop);
    return dot;
}

} // namespace WyWidgets

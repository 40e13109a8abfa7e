#include "WyWidgets/internal/widgets/MirroredMargins.h"

#include <QEvent>
#include <QLayout>
#include <QWidget>

namespace WyWidgets {

namespace {

/// Lives as long as the layout.
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
        if (event->type() == QEvent::LayoutDirectionChange && m_layout->contentsMargins() == m_applied)
            apply();
        return false;
    }

private:
    void apply()
    {
        const QMargins mirrored(m_margins.right(), m_margins.top(), m_margins.left(), m_margins.bottom());
        m_applied = m_layout->parentWidget()->isRightToLeft() ? mirrored : m_margins;
        m_layout->setContentsMargins(m_applied);
    }

    QLayout* m_layout;
    QMargins m_margins;
    QMargins m_applied;
};

} // namespace

void setMirroredMargins(QLayout* layout, const QMargins& margins)
{
    new MirroredMargins(layout, margins);
}

} // namespace WyWidgets

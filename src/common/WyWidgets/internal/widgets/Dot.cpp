#include "WyWidgets/internal/widgets/Dot.h"

#include "WyWidgets/internal/widgets/MirroredMargins.h"
#include "WyWidgets/internal/widgets/OwnTexts.h"

#include <QCoreApplication>
#include <QGridLayout>

namespace WyWidgets {

namespace {

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
        setMirroredMargins(grid, marginsPx);
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

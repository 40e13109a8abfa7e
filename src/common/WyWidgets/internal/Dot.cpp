#include "WyWidgets/internal/Dot.h"

#include <QCoreApplication>
#include <QGridLayout>

namespace WyWidgets {

namespace {

QLabel* createDot(QWidget* control, int sizePx)
{
    const QString meaning = QCoreApplication::translate("WyWidgets::Dot", "New");
    auto* dot = new QLabel(control);
    dot->setObjectName(QStringLiteral("label_dot"));
    dot->setFixedSize(sizePx, sizePx);
    dot->setAccessibleName(meaning);
    dot->setToolTip(meaning);
    return dot;
}

} // namespace

QLabel* placeDot(QWidget* control, QLabel* dot, int sizePx, const QMargins& marginsPx)
{
    if (!control->layout()) {
        auto* grid = new QGridLayout(control);
        grid->setSpacing(0);
        grid->setContentsMargins(marginsPx);
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

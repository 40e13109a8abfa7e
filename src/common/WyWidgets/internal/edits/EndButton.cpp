#include "WyWidgets/internal/edits/EndButton.h"

#include "WyWidgets/internal/edits/TextRoom.h"

#include <QHBoxLayout>
#include <QLineEdit>

namespace WyWidgets {

namespace {

QPushButton* createButton(QLineEdit* edit, const EndButton& wanted)
{
    auto* button = new QPushButton(edit);
    button->setObjectName(wanted.objectName);
    button->setFixedSize(wanted.sizePx, wanted.sizePx);
    button->setFocusPolicy(Qt::NoFocus);
    button->setCursor(Qt::PointingHandCursor);
    return button;
}

} // namespace

QPushButton* placeEndButton(QLineEdit* edit, const EndButton& wanted)
{
    auto* button = edit->findChild<QPushButton*>(wanted.objectName, Qt::FindDirectChildrenOnly);
    if (!edit->layout()) {
        auto* row = new QHBoxLayout(edit);
        row->setContentsMargins(wanted.marginsPx);
        row->addStretch();
    }
    auto* row = qobject_cast<QHBoxLayout*>(edit->layout());
    if (!row)
        return button;
    if (!button)
        button = createButton(edit, wanted);
    if (row->indexOf(button) < 0)
        row->addWidget(button);
    TextRoom::reserve(edit,
                      {wanted.sizePx + wanted.marginsPx.left(), wanted.sizePx + wanted.marginsPx.right()});
    return button;
}

} // namespace WyWidgets

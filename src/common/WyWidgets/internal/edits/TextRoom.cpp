#include "WyWidgets/internal/edits/TextRoom.h"

#include <QEvent>
#include <QLineEdit>

namespace WyWidgets {

void TextRoom::reserve(QLineEdit* edit, Widths widths)
{
    if (!edit->findChild<TextRoom*>(QString(), Qt::FindDirectChildrenOnly))
        new TextRoom(edit, widths);
}

TextRoom::TextRoom(QLineEdit* edit, Widths widths) : QObject(edit), m_edit(edit), m_widths(widths)
{
    followDirection();
    edit->installEventFilter(this);
}

bool TextRoom::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        followDirection();
    return QObject::eventFilter(watched, event);
}

void TextRoom::followDirection()
{
    QMargins others = m_edit->textMargins() - m_taken;
    // A host that has set margins of its own since has taken the room back.
    if (m_taken.left() > 0)
        others.setLeft(qMax(0, others.left()));
    if (m_taken.right() > 0)
        others.setRight(qMax(0, others.right()));
    m_taken =
        m_edit->isRightToLeft() ? QMargins(m_widths.leftPx, 0, 0, 0) : QMargins(0, 0, m_widths.rightPx, 0);
    m_edit->setTextMargins(others + m_taken);
}

} // namespace WyWidgets

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
    const QMargins others = m_edit->textMargins() - m_taken;
    m_taken =
        m_edit->isRightToLeft() ? QMargins(m_widths.leftPx, 0, 0, 0) : QMargins(0, 0, m_widths.rightPx, 0);
    m_edit->setTextMargins(others + m_taken);
}

} // namespace WyWidgets

#include "WyWidgets/internal/widgets/OwnTexts.h"

#include <QEvent>
#include <QWidget>

namespace WyWidgets {

OwnTexts* OwnTexts::of(QWidget* widget)
{
    auto* texts = widget->findChild<OwnTexts*>(QString(), Qt::FindDirectChildrenOnly);
    return texts ? texts : new OwnTexts(widget);
}

OwnTexts::OwnTexts(QWidget* widget) : QObject(widget), m_widget(widget) {}

void OwnTexts::setName(const Words& words)
{
    m_name.words = words;
    translateName();
}

void OwnTexts::setToolTip(const Words& words)
{
    m_toolTip.words = words;
    translateToolTip();
}

void OwnTexts::setNameAndToolTip(const Words& words)
{
    setName(words);
    setToolTip(words);
}

void OwnTexts::offerName(const Words& words)
{
    if (isNameOwn())
        setName(words);
}

void OwnTexts::offerToolTip(const Words& words)
{
    if (isToolTipOwn())
        setToolTip(words);
}

bool OwnTexts::isToolTipOwn() const
{
    return m_widget->toolTip() == m_toolTip.shown;
}

bool OwnTexts::event(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        if (m_name.words && isNameOwn())
            translateName();
        if (m_toolTip.words && isToolTipOwn())
            translateToolTip();
    }
    return QObject::event(event);
}

bool OwnTexts::isNameOwn() const
{
    return m_widget->accessibleName() == m_name.shown;
}

void OwnTexts::translateName()
{
    m_name.shown = m_name.words();
    m_widget->setAccessibleName(m_name.shown);
}

void OwnTexts::translateToolTip()
{
    m_toolTip.shown = m_toolTip.words();
    m_widget->setToolTip(m_toolTip.shown);
}

} // namespace WyWidgets

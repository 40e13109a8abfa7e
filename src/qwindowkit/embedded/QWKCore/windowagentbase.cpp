#include "QWKCore/windowagentbase.h"

#include "internal/SystemMenu.h"

#include <QScreen>
#include <QWidget>

namespace QWK {

WindowAgentBase::WindowAgentBase(QObject* parent) : QObject(parent) {}

WindowAgentBase::~WindowAgentBase() = default;

QVariant WindowAgentBase::windowAttribute(const QString& key) const
{
    return m_attributes.value(key);
}

bool WindowAgentBase::setWindowAttribute(const QString& key, const QVariant& attribute)
{
    if (attribute.isValid())
        m_attributes.insert(key, attribute);
    else
        m_attributes.remove(key);
    return true;
}

void WindowAgentBase::showSystemMenu(const QPoint& pos)
{
    if (QWidget* window = host())
        SystemMenu::open(window, pos);
}

void WindowAgentBase::centralize()
{
    QWidget* window = host();
    if (!window || !window->screen())
        return;
    QRect frame = window->frameGeometry();
    frame.moveCenter(window->screen()->availableGeometry().center());
    window->move(frame.topLeft());
}

void WindowAgentBase::raise()
{
    QWidget* window = host();
    if (!window)
        return;
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace QWK

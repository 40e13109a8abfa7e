#include "WyWidgets/frame/WyMainWindow.h"

#include <QWKWidgets/widgetwindowagent.h>

namespace WyWidgets {

WyMainWindow::WyMainWindow(QWidget* parent) : QMainWindow(parent, Qt::WindowFlags())
{
    installWindowAgent();
}

void WyMainWindow::installWindowAgent()
{
    m_agent = new QWK::WidgetWindowAgent(this);
    m_agent->setup(this);
}

void WyMainWindow::registTitleBar(QWidget* titleBar)
{
    if (titleBar && m_agent)
        m_agent->setTitleBar(titleBar);
}

void WyMainWindow::registMaxButton(QWidget* button)
{
    if (button && m_agent)
        m_agent->setSystemButton(QWK::WindowAgentBase::Maximize, button);
}

void WyMainWindow::registHitTestVisible(QWidget* widget, bool visible)
{
    if (widget && m_agent)
        m_agent->setHitTestVisible(widget, visible);
}

void WyMainWindow::setSystemButtonsVisible(bool visible)
{
    if (m_agent)
        m_agent->setWindowAttribute(QStringLiteral("no-system-buttons"), !visible);
}

} // namespace WyWidgets

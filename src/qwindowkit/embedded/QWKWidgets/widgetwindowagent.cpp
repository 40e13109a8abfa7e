#include "QWKWidgets/widgetwindowagent.h"

#include "internal/TitleBarArea.h"
#include "internal/WindowFrame.h"

#include <QWidget>

namespace QWK {

WidgetWindowAgent::WidgetWindowAgent(QObject* parent)
    : WindowAgentBase(parent), m_titleBarArea(std::make_unique<TitleBarArea>())
{
}

WidgetWindowAgent::~WidgetWindowAgent() = default;

bool WidgetWindowAgent::setup(QWidget* w)
{
    if (!w || m_frame)
        return false;
    w->setAttribute(Qt::WA_DontCreateNativeAncestors);
    m_host = w;
    m_frame = std::make_unique<WindowFrame>(w, *m_titleBarArea);
    connect(m_frame.get(), &WindowFrame::systemMenuRequested, this, &WidgetWindowAgent::showSystemMenu);
    return true;
}

QWidget* WidgetWindowAgent::titleBar() const
{
    return m_titleBarArea->titleBar();
}

void WidgetWindowAgent::setTitleBar(QWidget* w)
{
    if (m_titleBarArea->setTitleBar(w))
        emit titleBarChanged(w);
}

QWidget* WidgetWindowAgent::systemButton(SystemButton button) const
{
    return m_titleBarArea->systemButton(button);
}

void WidgetWindowAgent::setSystemButton(SystemButton button, QWidget* w)
{
    if (m_titleBarArea->setSystemButton(button, w))
        emit systemButtonChanged(button, w);
}

bool WidgetWindowAgent::isHitTestVisible(const QWidget* w) const
{
    return m_titleBarArea->isHitTestVisible(w);
}

void WidgetWindowAgent::setHitTestVisible(QWidget* w, bool visible)
{
    m_titleBarArea->setHitTestVisible(w, visible);
}

QWidget* WidgetWindowAgent::host() const
{
    return m_host;
}

} // namespace QWK

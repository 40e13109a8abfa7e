#include "internal/TitleBarArea.h"

#include <algorithm>

namespace QWK {

namespace {

bool contains(const QWidget* window, const QWidget* part, QPoint pos)
{
    return part && part->isVisible() && part->window() == window &&
           QRect(part->mapTo(window, QPoint()), part->size()).contains(pos);
}

bool isButton(WindowAgentBase::SystemButton button)
{
    return button > WindowAgentBase::Unknown && button <= WindowAgentBase::Close;
}

} // namespace

QWidget* TitleBarArea::titleBar() const
{
    return m_titleBar;
}

bool TitleBarArea::setTitleBar(QWidget* titleBar)
{
    if (titleBar == m_titleBar)
        return false;
    if (m_titleBar) {
        m_systemButtons.fill(nullptr);
        m_hitTestVisible.clear();
    }
    m_titleBar = titleBar;
    return true;
}

QWidget* TitleBarArea::systemButton(WindowAgentBase::SystemButton button) const
{
    return isButton(button) ? m_systemButtons[button] : nullptr;
}

bool TitleBarArea::setSystemButton(WindowAgentBase::SystemButton button, QWidget* widget)
{
    if (!isButton(button) || m_systemButtons[button] == widget)
        return false;
    m_systemButtons[button] = widget;
    return true;
}

bool TitleBarArea::isHitTestVisible(const QWidget* widget) const
{
    return widget &&
           std::find(m_hitTestVisible.begin(), m_hitTestVisible.end(), widget) != m_hitTestVisible.end();
}

void TitleBarArea::setHitTestVisible(QWidget* widget, bool visible)
{
    // Destroyed widgets are null by now and go with the same sweep.
    m_hitTestVisible.erase(std::remove_if(m_hitTestVisible.begin(), m_hitTestVisible.end(),
                                          [=](const auto& known) { return !known || known == widget; }),
                           m_hitTestVisible.end());
    if (widget && visible)
        m_hitTestVisible += widget;
}

bool TitleBarArea::isDraggable(const QWidget* window, QPoint pos) const
{
    return contains(window, m_titleBar, pos) && m_titleBar->isEnabled() && !isOnButton(window, pos);
}

bool TitleBarArea::isOnButton(const QWidget* window, QPoint pos) const
{
    const auto isUnder = [=](const QWidget* widget) {
        return contains(window, widget, pos);
    };
    return std::any_of(m_systemButtons.begin(), m_systemButtons.end(),
                       [=](const QWidget* button) { return isUnder(button) && button->isEnabled(); }) ||
           std::any_of(m_hitTestVisible.begin(), m_hitTestVisible.end(), isUnder);
}

} // namespace QWK

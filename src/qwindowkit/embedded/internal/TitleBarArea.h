#pragma once

#include <QWKCore/windowagentbase.h>

#include <QPointer>
#include <QVector>
#include <QWidget>

#include <array>

namespace QWK {

/// Knows which part of a window moves it: the title bar without its registered buttons and children.
class TitleBarArea
{
public:
    QWidget* titleBar() const;
    /// False if nothing changes.
    bool setTitleBar(QWidget* titleBar);

    QWidget* systemButton(WindowAgentBase::SystemButton button) const;
    /// False if nothing changes.
    bool setSystemButton(WindowAgentBase::SystemButton button, QWidget* widget);

    bool isHitTestVisible(const QWidget* widget) const;
    void setHitTestVisible(QWidget* widget, bool visible);

    /// Whether a press at this position of the window moves the window.
    bool isDraggable(const QWidget* window, QPoint pos) const;

private:
    bool isOnButton(const QWidget* window, QPoint pos) const;

    QPointer<QWidget> m_titleBar;
    std::array<QPointer<QWidget>, WindowAgentBase::Close + 1> m_systemButtons;
    QVector<QPointer<QWidget>> m_hitTestVisible;
};

} // namespace QWK

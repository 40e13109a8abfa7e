#include "WyWidgets/wycontrol/WyShadowButton.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace WyWidgets {

namespace {

constexpr int kClickDurationMs = 100;

} // namespace

WyShadowButton::WyShadowButton(QWidget* parent) : WyShadowWidget(parent)
{
    InitView();
    InitConnect();
}

void WyShadowButton::SetButtonObjectName(const QString& name)
{
    if (m_button)
        m_button->setObjectName(name);
}

void WyShadowButton::SetButtonText(const QString& text)
{
    if (m_button)
        m_button->setText(text);
}

void WyShadowButton::SetButtonMinimumWidth(int width)
{
    if (m_button)
        m_button->setMinimumWidth(width);
}

void WyShadowButton::SetButtonFixedHeight(int height)
{
    if (m_button)
        m_button->setFixedHeight(height);
}

// Every press lasts equally long: the argument is ignored on purpose.
void WyShadowButton::ButtonAnimateClick(int)
{
    if (m_button)
        m_button->animateClick(kClickDurationMs);
}

void WyShadowButton::InitView()
{
    if (m_button)
        return;
    if (!layout())
        new QHBoxLayout(this);
    layout()->setContentsMargins(0, 0, 0, 0);
    m_button = new QPushButton(this);
    m_button->setAttribute(Qt::WA_LayoutUsesWidgetRect);
    layout()->addWidget(m_button);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

void WyShadowButton::InitConnect()
{
    if (m_button)
        connect(m_button, SIGNAL(clicked()), this, SIGNAL(SignalButtonClicked()), Qt::UniqueConnection);
}

} // namespace WyWidgets

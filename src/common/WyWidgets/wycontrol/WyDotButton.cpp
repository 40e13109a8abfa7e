#include "WyWidgets/wycontrol/WyDotButton.h"

#include "WyWidgets/internal/widgets/Dot.h"

namespace WyWidgets {

namespace {

constexpr int kDotSizePx = 4;
constexpr QMargins kDotMarginsPx(0, 2, 2, 0);

} // namespace

WyDotButton::WyDotButton(QWidget* parent) : QPushButton(parent)
{
    InitView();
}

void WyDotButton::SetDotVisible(bool visible)
{
    if (m_dot)
        m_dot->setVisible(visible);
}

bool WyDotButton::IsDotVisible() const
{
    return m_dot && m_dot->isVisible();
}

void WyDotButton::InitView()
{
    m_dot = placeDot(this, m_dot, kDotSizePx, kDotMarginsPx);
}

} // namespace WyWidgets

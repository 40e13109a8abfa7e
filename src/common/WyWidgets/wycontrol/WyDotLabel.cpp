#include "WyWidgets/wycontrol/WyDotLabel.h"

#include "WyWidgets/internal/widgets/Dot.h"

namespace WyWidgets {

namespace {

constexpr int kDotSizePx = 8;
constexpr QMargins kDotMarginsPx(0, 2, 2, 0);

} // namespace

WyDotLabel::WyDotLabel(QWidget* parent) : QLabel(parent)
{
    InitView();
}

void WyDotLabel::SetDotVisible(bool visible)
{
    if (m_dot)
        m_dot->setVisible(visible);
}

bool WyDotLabel::IsDotVisible() const
{
    return m_dot && m_dot->isVisible();
}

void WyDotLabel::InitView()
{
    m_dot = placeDot(this, m_dot, kDotSizePx, kDotMarginsPx);
}

} // namespace WyWidgets

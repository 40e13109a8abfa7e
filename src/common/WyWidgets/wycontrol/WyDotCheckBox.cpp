#include "WyWidgets/wycontrol/WyDotCheckBox.h"

#include "WyWidgets/internal/widgets/Dot.h"

namespace WyWidgets {

namespace {

constexpr int kDotSizePx = 4;
constexpr QMargins kDotMarginsPx(20, 10, 0, 0);

} // namespace

WyDotCheckBox::WyDotCheckBox(QWidget* parent) : QCheckBox(parent)
{
    InitView();
}

void WyDotCheckBox::SetDotVisible(bool visible)
{
    if (m_dot)
        m_dot->setVisible(visible);
}

bool WyDotCheckBox::IsDotVisible() const
{
    return m_dot && m_dot->isVisible();
}

void WyDotCheckBox::InitView()
{
    m_dot = placeDot(this, m_dot, kDotSizePx, kDotMarginsPx);
}

} // namespace WyWidgets

#pragma once

#include <QPushButton>

namespace WyWidgets {

/// A push button without text whose icon paints itself. Push buttons paint the icon's pixmap, which has no
/// more pixels than points unless the application has asked for dense ones.
class ToastIconButton : public QPushButton
{
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace WyWidgets

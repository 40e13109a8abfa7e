#include "WyWidgets/frame/WyTransWidget.h"

#include "WyWidgets/internal/platform/NativeWindow.h"

namespace WyWidgets {

using NativeWindow::Level;

namespace {

Level onTopLevel(bool high)
{
    return high ? Level::PopUpMenu : Level::ModalPanel;
}

} // namespace

WyTransWidget::WyTransWidget(QWidget* parent) : QWidget(parent) {}

void WyTransWidget::SetWidgetIgnoresMouseEvents(QWidget* widget, bool ignores)
{
    NativeWindow::setIgnoresMouseEvents(widget, ignores);
}

void WyTransWidget::SetWidgetStaysOnTop(QWidget* widget, bool onTop, bool high)
{
    NativeWindow::setLevel(widget, onTop ? onTopLevel(high) : Level::Normal);
}

void WyTransWidget::SetHasShadow(QWidget* widget, bool hasShadow)
{
    NativeWindow::setHasShadow(widget, hasShadow);
}

void WyTransWidget::StartNativeSystemMove(QWidget* widget)
{
    NativeWindow::startMove(widget);
}

void WyTransWidget::SetWidgetIgnoresMouseEvents(bool ignores)
{
    NativeWindow::setIgnoresMouseEvents(this, ignores);
}

void WyTransWidget::SetWidgetStaysOnTop(bool high)
{
    // Deliberately no way back to the normal level here.
    NativeWindow::setLevel(this, onTopLevel(high));
}

void WyTransWidget::SetHasShadow(bool hasShadow)
{
    NativeWindow::setHasShadow(this, hasShadow);
}

void WyTransWidget::SetMiniaturizable(bool)
{
    NativeWindow::makeMiniaturizable(this);
}

} // namespace WyWidgets

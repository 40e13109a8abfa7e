#include "Window.h"

#include <QPushButton>
#include <QVBoxLayout>

Window::Window(QWidget* parent) : QWidget(parent)
{
    setLayout(new QVBoxLayout);
}

QPushButton* Window::addButton(const QString& text)
{
    auto* button = new QPushButton(text, this);
    button->move(24, 64);
    button->adjustSize();
    button->show();
    return button;
}

const QVector<Window::Snippet>& Window::snippets()
{
    static const QVector<Snippet> snippets = {
        {"WyAnimationButton", &Window::animationButton},
        {"WyAnimationButton-more", &Window::animationButtonMore},
        {"WyArrowWidget", &Window::arrowWidget},
        {"WyBubbleButton", &Window::bubbleButton},
        {"WyBubbleTip", &Window::bubbleTip},
        {"WyBubbleWidget", &Window::bubbleWidget},
        {"WyCheckBox", &Window::checkBox},
        {"WyClearEdit", &Window::clearEdit},
        {"WyDialog", &Window::dialog},
        {"WyDialogBar", &Window::dialogBar},
        {"WyDotButton", &Window::dotButton},
        {"WyDotCheckBox", &Window::dotCheckBox},
        {"WyDotLabel", &Window::dotLabel},
        {"WyElidedLabel", &Window::elidedLabel},
        {"WyErrorWidget", &Window::errorWidget},
        {"WyErrorWidget-more", &Window::errorWidgetMore},
        {"WyFlatTab", &Window::flatTab},
        {"WyFlatVTab", &Window::flatVTab},
        {"WyFlowLayout", &Window::flowLayout},
        {"WyGifButton", &Window::gifButton},
        {"WyGifLabel", &Window::gifLabel},
        {"WyHandleSlider", &Window::handleSlider},
        {"WyHoverButton", &Window::hoverButton},
        {"WyImageButton", &Window::imageButton},
        {"WyIntValidator", &Window::intValidator},
        {"WyLabel", &Window::label},
        {"WyLoadBox", &Window::loadBox},
        {"WyMainWindow", &Window::mainWindow},
        {"WyMenu", &Window::menu},
        {"WyMoveableFrame", &Window::moveableFrame},
        {"WyPasswordEdit", &Window::passwordEdit},
        {"WyPopupBox", &Window::popupBox},
        {"WyPopupWidget", &Window::popupWidget},
        {"WySelectFrame", &Window::selectFrame},
        {"WySelectFrame-more", &Window::selectFrameMore},
        {"WyShadowButton", &Window::shadowButton},
        {"WyShadowWidget", &Window::shadowWidget},
        {"WyShortcutEdit", &Window::shortcutEdit},
        {"WySimpleToast", &Window::simpleToast},
        {"WySimpleToast-more", &Window::simpleToastMore},
        {"WyTipWidget", &Window::tipWidget},
        {"WyToast", &Window::toast},
        {"WyToast-colors", &Window::toastColors},
        {"WyToast-icon", &Window::toastIcon},
        {"WyToast-more", &Window::toastMore},
        {"WyToast-settings", &Window::toastSettings},
        {"WyToast-size", &Window::toastSize},
        {"WyToastWidget", &Window::toastWidget},
        {"WyTransWidget", &Window::transWidget},
        {"WyWaitingBar", &Window::waitingBar},
        {"WyWaitingSpinnerWidget", &Window::waitingSpinner},
        {"WyWaitingSpinnerWidget-more", &Window::waitingSpinnerMore},
        {"WyWidgetUtils", &Window::widgetUtils},
        {"WyWidgetUtils-more", &Window::widgetUtilsMore},
        {"WyWidgetUtils-style", &Window::widgetUtilsStyle},
        {"WyWindowBar", &Window::windowBar},
        {"styling-animation", &Window::stylingAnimation},
        {"styling-own", &Window::stylingOwn},
        {"styling-state", &Window::stylingState},
    };
    return snippets;
}

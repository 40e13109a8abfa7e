#include "support/LibraryWidgets.h"

#include "WyWidgets/frame/WyDialog.h"
#include "WyWidgets/frame/WyDialogBar.h"
#include "WyWidgets/frame/WyMainWindow.h"
#include "WyWidgets/frame/WyMoveableFrame.h"
#include "WyWidgets/frame/WyShadowWidget.h"
#include "WyWidgets/frame/WyTransWidget.h"
#include "WyWidgets/frame/WyWindowBar.h"
#include "WyWidgets/layout/WySelectFrame.h"
#include "WyWidgets/wycontrol/WyAnimationButton.h"
#include "WyWidgets/wycontrol/WyArrowWidget.h"
#include "WyWidgets/wycontrol/WyBubbleButton.h"
#include "WyWidgets/wycontrol/WyBubbleTip.h"
#include "WyWidgets/wycontrol/WyCheckBox.h"
#include "WyWidgets/wycontrol/WyClearEdit.h"
#include "WyWidgets/wycontrol/WyDotButton.h"
#include "WyWidgets/wycontrol/WyDotCheckBox.h"
#include "WyWidgets/wycontrol/WyDotLabel.h"
#include "WyWidgets/wycontrol/WyElidedLabel.h"
#include "WyWidgets/wycontrol/WyErrorWidget.h"
#include "WyWidgets/wycontrol/WyFlatTab.h"
#include "WyWidgets/wycontrol/WyFlatVTab.h"
#include "WyWidgets/wycontrol/WyGifButton.h"
#include "WyWidgets/wycontrol/WyGifLabel.h"
#include "WyWidgets/wycontrol/WyHandleSlider.h"
#include "WyWidgets/wycontrol/WyHoverButton.h"
#include "WyWidgets/wycontrol/WyImageButton.h"
#include "WyWidgets/wycontrol/WyLabel.h"
#include "WyWidgets/wycontrol/WyLoadBox.h"
#include "WyWidgets/wycontrol/WyMenu.h"
#include "WyWidgets/wycontrol/WyPasswordEdit.h"
#include "WyWidgets/wycontrol/WyPopupBox.h"
#include "WyWidgets/wycontrol/WyPopupWidget.h"
#include "WyWidgets/wycontrol/WyShadowButton.h"
#include "WyWidgets/wycontrol/WyShortcutEdit.h"
#include "WyWidgets/wycontrol/WySimpleToast.h"
#include "WyWidgets/wycontrol/WyTipWidget.h"
#include "WyWidgets/wycontrol/WyToast.h"
#include "WyWidgets/wycontrol/WyToastWidget.h"
#include "WyWidgets/wycontrol/WyWaitingBar.h"
#include "WyWidgets/wycontrol/WyWaitingSpinnerWidget.h"

namespace WyTest {

using namespace WyWidgets;

namespace {

template <typename Widget>
QWidget* create()
{
    return new Widget;
}

template <WySelectFrame::FrameType type>
QWidget* createSelectFrame()
{
    auto* frame = new WySelectFrame(type);
    frame->InitView();
    return frame;
}

template <bool withMargin>
QWidget* createDialog()
{
    auto* dialog = new WyDialog(false, nullptr);
    dialog->createContent();
    dialog->GetTitleBar();
    dialog->ShowMask(dialog, withMargin);
    return dialog;
}

QWidget* createWindowBar()
{
    auto* bar = new WyWindowBar;
    bar->AddSeparator();
    bar->InitSysButton();
    return bar;
}

QWidget* createMaskedLoadBox()
{
    auto* box = new WyLoadBox;
    box->StartLoad(true);
    return box;
}

template <typename Popup, QWidget* (Popup::*createContent)()>
QWidget* createPopup()
{
    auto* popup = new Popup;
    (popup->*createContent)();
    return popup;
}

} // namespace

const QVector<LibraryWidget>& libraryWidgets()
{
    static const QVector<LibraryWidget> widgets = {
        {"WyAnimationButton", create<WyAnimationButton>},
        {"WyArrowWidget", create<WyArrowWidget>},
        {"WyBubbleButton", create<WyBubbleButton>},
        {"WyBubbleTip", create<WyBubbleTip>},
        {"WyBubbleWidget",
         []() -> QWidget* {
             return new WyBubbleWidget(true, nullptr);
         }},
        {"WyCheckBox",
         []() -> QWidget* {
             return new WyCheckBox(QStringLiteral("text"));
         }},
        {"WyClearEdit", create<WyClearEdit>},
        {"WyDialog", createDialog<false>},
        {"WyDialog", createDialog<true>},
        {"WyDialogBar", create<WyDialogBar>},
        {"WyDotButton", create<WyDotButton>},
        {"WyDotCheckBox", create<WyDotCheckBox>},
        {"WyDotLabel", create<WyDotLabel>},
        {"WyElidedLabel", create<WyElidedLabel>},
        {"WyErrorWidget", create<WyErrorWidget>},
        {"WyFlatTab", create<WyFlatTab>},
        {"WyFlatVTab", create<WyFlatVTab>},
        {"WyGifButton", create<WyGifButton>},
        {"WyGifLabel", create<WyGifLabel>},
        {"WyHandleSlider", create<WyHandleSlider>},
        {"WyHoverButton", create<WyHoverButton>},
        {"WyImageButton", create<WyImageButton>},
        {"WyLabel", create<WyLabel>},
        {"WyLoadBox", createMaskedLoadBox},
        {"WyMainWindow", create<WyMainWindow>},
        {"WyMenu", create<WyMenu>},
        {"WyMoveableFrame",
         []() -> QWidget* {
             return new WyMoveableFrame(WyMoveableFrame::kDirection_H);
         }},
        {"WyPasswordEdit", create<WyPasswordEdit>},
        {"WyPopupBox", createPopup<WyPopupBox, &WyPopupBox::createContent>},
        {"WyPopupWidget", createPopup<WyPopupWidget, &WyPopupWidget::CreateContent>},
        {"WySelectFrame", createSelectFrame<WySelectFrame::kType_Close>},
        {"WySelectFrame", createSelectFrame<WySelectFrame::kType_Corners>},
        {"WySelectFrame", createSelectFrame<WySelectFrame::kType_Points>},
        {"WyShadowButton", create<WyShadowButton>},
        {"WyShadowWidget", create<WyShadowWidget>},
        {"WyShortcutEdit", create<WyShortcutEdit>},
        {"WySimpleToast", create<WySimpleToast>},
        {"WyTipWidget", create<WyTipWidget>},
        {"WyToast", create<WyToast>},
        {"WyToastWidget", create<WyToastWidget>},
        {"WyTransWidget", create<WyTransWidget>},
        {"WyWaitingBar", create<WyWaitingBar>},
        {"WyWaitingSpinnerWidget", create<WyWaitingSpinnerWidget>},
        {"WyWindowBar", createWindowBar},
    };
    return widgets;
}

} // namespace WyTest

// Buttons, animated images and the load box.

#include "monkey/Catalogue.h"

#include "WyWidgets/wycontrol/WyAnimationButton.h"
#include "WyWidgets/wycontrol/WyBubbleButton.h"
#include "WyWidgets/wycontrol/WyDotButton.h"
#include "WyWidgets/wycontrol/WyGifButton.h"
#include "WyWidgets/wycontrol/WyGifLabel.h"
#include "WyWidgets/wycontrol/WyHoverButton.h"
#include "WyWidgets/wycontrol/WyImageButton.h"
#include "WyWidgets/wycontrol/WyLoadBox.h"
#include "WyWidgets/wycontrol/WyShadowButton.h"

namespace Monkey {

using namespace WyWidgets;

namespace {

ClassEntry animationButton()
{
    using C = WyAnimationButton;
    return Describe<C>("WyAnimationButton")
        .call("SetAnimationText", &C::SetAnimationText)
        .call("SetAnimationSecond", &C::SetAnimationSecond)
        .call("StartAnimation", &C::StartAnimation)
        .call("StopAnimation", &C::StopAnimation)
        .call("InitView", &C::InitView)
        .call("SlotTimeOut", &C::SlotTimeOut);
}

ClassEntry gifButton()
{
    using C = WyGifButton;
    return Describe<C>("WyGifButton")
        .call("SetButtonText", &C::SetButtonText)
        .call("StartAnimation", &C::StartAnimation)
        .call("StopAnimation", &C::StopAnimation)
        .call("InitView", &C::InitView)
        .call("sizeHint", &C::sizeHint);
}

ClassEntry gifLabel()
{
    using C = WyGifLabel;
    return Describe<C>("WyGifLabel")
        .call("SetGif", &C::SetGif)
        .call("start", &C::start)
        .call("stop", &C::stop)
        .call("slotTimeOut", &C::slotTimeOut);
}

ClassEntry imageButton()
{
    using C = WyImageButton;
    return Describe<C>("WyImageButton")
        .createdBy([](Random& random, QWidget* parent) -> QObject* {
            return random.oneIn(2) ? new C(parent) : new C(random.text(), parent);
        })
        .call("setIconNormal", &C::setIconNormal)
        .call("setIconDisable", &C::setIconDisable)
        .call("UpdateStyle", &C::UpdateStyle);
}

ClassEntry shadowButton()
{
    using C = WyShadowButton;
    return Describe<C>("WyShadowButton")
        .call("setShadowColor", &C::setShadowColor)
        .call("SetButtonObjectName", &C::SetButtonObjectName)
        .call("SetButtonText", &C::SetButtonText)
        // A shadow takes as much memory as its widget has pixels.
        .callWith("SetButtonMinimumWidth",
                  [](C& button, Random& random) { button.SetButtonMinimumWidth(random.length() - 1); })
        .callWith("SetButtonFixedHeight",
                  [](C& button, Random& random) { button.SetButtonFixedHeight(random.length() - 1); })
        .call("ButtonAnimateClick", &C::ButtonAnimateClick)
        .call("InitView", &C::InitView)
        .call("InitConnect", &C::InitConnect);
}

} // namespace

std::vector<ClassEntry> buttonClasses()
{
    return {animationButton(),
            Describe<WyBubbleButton>("WyBubbleButton").call("SetBubbleTip", &WyBubbleButton::SetBubbleTip),
            Describe<WyDotButton>("WyDotButton")
                .call("SetDotVisible", &WyDotButton::SetDotVisible)
                .call("IsDotVisible", &WyDotButton::IsDotVisible)
                .call("InitView", &WyDotButton::InitView)
                .call("setText", &WyDotButton::setText),
            gifButton(),
            gifLabel(),
            Describe<WyHoverButton>("WyHoverButton").endsLater().call("setText", &WyHoverButton::setText),
            imageButton(),
            Describe<WyLoadBox>("WyLoadBox")
                .call("StartLoad", &WyLoadBox::StartLoad)
                .call("StopLoad", &WyLoadBox::StopLoad)
                .call("AdjustParentSize", &WyLoadBox::AdjustParentSize),
            shadowButton()};
}

} // namespace Monkey

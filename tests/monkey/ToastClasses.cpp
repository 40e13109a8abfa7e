// The three kinds of toasts.

#include "monkey/Catalogue.h"

#include "WyWidgets/wycontrol/WySimpleToast.h"
#include "WyWidgets/wycontrol/WyToast.h"
#include "WyWidgets/wycontrol/WyToastWidget.h"

#include <QIcon>

namespace Monkey {

using namespace WyWidgets;

namespace {

/// Times of a millisecond or some: toasts come and go while the driver looks.
unsigned int shortTime(Random& random)
{
    return random.oneIn(20) ? static_cast<unsigned int>(random.integer()) : random.below(40);
}

ClassEntry simpleToast()
{
    using C = WySimpleToast;
    return Describe<C>("WySimpleToast")
        .createdBy([](Random& random, QWidget* parent) -> QObject* {
            auto* toast = new C(parent);
            toast->setShowDuration(random.below(30));
            toast->setHideDuration(random.below(30));
            toast->setDuration(random.below(300));
            return toast;
        })
        .call("setText", &C::setText)
        .call("setStyle", &C::setStyle)
        .call("setIcon", &C::setIcon)
        .call("setBackgroundColor", &C::setBackgroundColor)
        .call("setOpacity", &C::setOpacity)
        .call("setTextColor", &C::setTextColor)
        .call("setOrientation", &C::setOrientation)
        .callWith("setDuration", [](C& toast, Random& random) { toast.setDuration(shortTime(random)); })
        .callWith("setShowDuration",
                  [](C& toast, Random& random) { toast.setShowDuration(shortTime(random)); })
        .callWith("setHideDuration",
                  [](C& toast, Random& random) { toast.setHideDuration(shortTime(random)); })
        .call("setPopupOpacity", &C::setPopupOpacity)
        .call("stateOrientation", &C::stateOrientation)
        .call("shiftOrientation", &C::shiftOrientation)
        .call("show", &C::show)
        .call("hideAnimation", &C::hideAnimation)
        .call("hide", &C::hide);
}

void addSettings(Describe<WyToast>& toast)
{
    using C = WyToast;
    toast
        .callWith("setMaximumOnScreen",
                  [](C&, Random& random) {
                      C::setMaximumOnScreen(random.oneIn(4) ? random.integer() : random.below(5));
                  })
        .call("setSpacing", &C::setSpacing)
        .call("setOffset", &C::setOffset)
        .call("setOffsetX", &C::setOffsetX)
        .call("setOffsetY", &C::setOffsetY)
        .call("setAlwaysOnMainScreen", &C::setAlwaysOnMainScreen)
        .call("setFixedScreen", &C::setFixedScreen)
        .call("setPosition", &C::setPosition)
        .call("reset", &C::reset)
        .call("showNextInQueue", &C::showNextInQueue);
}

void addLooks(Describe<WyToast>& toast)
{
    using C = WyToast;
    toast.call("setTitle", &C::setTitle)
        .call("setText", &C::setText)
        .call("setIcon", qOverload<const QPixmap&>(&C::setIcon))
        .call("setIcon of", qOverload<ToastIcon>(&C::setIcon))
        .call("setShowIcon", &C::setShowIcon)
        .call("setShowIconSeparator", &C::setShowIconSeparator)
        .call("setCloseButtonIcon", qOverload<const QPixmap&>(&C::setCloseButtonIcon))
        .call("setCloseButtonIcon of", qOverload<ToastIcon>(&C::setCloseButtonIcon))
        .call("setShowCloseButton", &C::setShowCloseButton)
        .call("setCloseButtonAlignment", &C::setCloseButtonAlignment)
        .call("setStayOnTop", &C::setStayOnTop)
        .call("setBackgroundColor", &C::setBackgroundColor)
        .call("setTitleColor", &C::setTitleColor)
        .call("setTextColor", &C::setTextColor)
        .call("setIconColor", &C::setIconColor)
        .call("setIconSeparatorColor", &C::setIconSeparatorColor)
        .call("setCloseButtonIconColor", &C::setCloseButtonIconColor)
        .call("setDurationBarColor", &C::setDurationBarColor)
        .call("setTitleFont", &C::setTitleFont)
        .call("setTextFont", &C::setTextFont)
        .call("applyPreset", &C::applyPreset)
        .call("getIconFromEnum", &C::getIconFromEnum)
        .call("getCurrentDirectory", &C::getCurrentDirectory)
        .call("recolorImage", &C::recolorImage);
}

void addMeasures(Describe<WyToast>& toast)
{
    using C = WyToast;
    toast.call("setIconSize", &C::setIconSize)
        .call("setIconSeparatorWidth", &C::setIconSeparatorWidth)
        .call("setCloseButtonIconSize", &C::setCloseButtonIconSize)
        .call("setCloseButtonSize", &C::setCloseButtonSize)
        .call("setCloseButtonWidth", &C::setCloseButtonWidth)
        .call("setCloseButtonHeight", &C::setCloseButtonHeight)
        .call("setBorderRadius", &C::setBorderRadius)
        .call("setMargins", &C::setMargins)
        .call("setMarginLeft", &C::setMarginLeft)
        .call("setMarginTop", &C::setMarginTop)
        .call("setMarginRight", &C::setMarginRight)
        .call("setMarginBottom", &C::setMarginBottom)
        .call("setIconMargins", &C::setIconMargins)
        .call("setIconMarginLeft", &C::setIconMarginLeft)
        .call("setIconMarginTop", &C::setIconMarginTop)
        .call("setIconMarginRight", &C::setIconMarginRight)
        .call("setIconMarginBottom", &C::setIconMarginBottom)
        .call("setIconSectionMargins", &C::setIconSectionMargins)
        .call("setIconSectionMarginLeft", &C::setIconSectionMarginLeft)
        .call("setIconSectionMarginTop", &C::setIconSectionMarginTop)
        .call("setIconSectionMarginRight", &C::setIconSectionMarginRight)
        .call("setIconSectionMarginBottom", &C::setIconSectionMarginBottom)
        .call("setTextSectionMargins", &C::setTextSectionMargins)
        .call("setTextSectionMarginLeft", &C::setTextSectionMarginLeft)
        .call("setTextSectionMarginTop", &C::setTextSectionMarginTop)
        .call("setTextSectionMarginRight", &C::setTextSectionMarginRight)
        .call("setTextSectionMarginBottom", &C::setTextSectionMarginBottom)
        .call("setCloseButtonMargins", &C::setCloseButtonMargins)
        .call("setCloseButtonMarginLeft", &C::setCloseButtonMarginLeft)
        .call("setCloseButtonMarginTop", &C::setCloseButtonMarginTop)
        .call("setCloseButtonMarginRight", &C::setCloseButtonMarginRight)
        .call("setCloseButtonMarginBottom", &C::setCloseButtonMarginBottom)
        .call("setTextSectionSpacing", &C::setTextSectionSpacing)
        .call("setFixedSize", qOverload<const QSize&>(&C::setFixedSize))
        .call("setFixedSize of", qOverload<int, int>(&C::setFixedSize))
        .call("setFixedWidth", &C::setFixedWidth)
        .call("setFixedHeight", &C::setFixedHeight);
}

void addLife(Describe<WyToast>& toast)
{
    using C = WyToast;
    toast.callWith("setDuration", [](C& t, Random& random) { t.setDuration(int(shortTime(random))); })
        .callWith("setFadeInDuration",
                  [](C& t, Random& random) { t.setFadeInDuration(int(shortTime(random))); })
        .callWith("setFadeOutDuration",
                  [](C& t, Random& random) { t.setFadeOutDuration(int(shortTime(random))); })
        .call("setShowDurationBar", &C::setShowDurationBar)
        .call("setResetDurationOnHover", &C::setResetDurationOnHover);
    // Most of the other operations end nothing, so these come more often.
    for (int repeat = 0; repeat < 8; ++repeat)
        toast.call("show", &C::show).call("hide", &C::hide);
}

ClassEntry toast()
{
    auto toast = Describe<WyToast>("WyToast").createdBy([](Random& random, QWidget* parent) -> QObject* {
        auto* made = new WyToast(parent);
        made->setDuration(random.below(300));
        made->setFadeInDuration(random.below(30));
        made->setFadeOutDuration(random.below(30));
        return made;
    });
    addSettings(toast);
    addLooks(toast);
    addMeasures(toast);
    addLife(toast);
    return toast;
}

ClassEntry toastWidget()
{
    using C = WyToastWidget;
    return Describe<C>("WyToastWidget")
        .call("InitView", &C::InitView)
        .call("SetText", &C::SetText)
        .callWith(
            "ShowToastText",
            [](C&, Random& random) {
                const QString text = random.text();
                C::ShowToastText(random.point(), text, random.below(500) - 1);
            },
            true);
}

} // namespace

std::vector<ClassEntry> toastClasses()
{
    return {simpleToast(), toast(), toastWidget()};
}

} // namespace Monkey

// Tips, bubbles, popups and the error widget.

#include "monkey/Catalogue.h"

#include "WyWidgets/wycontrol/WyArrowWidget.h"
#include "WyWidgets/wycontrol/WyBubbleTip.h"
#include "WyWidgets/wycontrol/WyBubbleWidget.h"
#include "WyWidgets/wycontrol/WyErrorWidget.h"
#include "WyWidgets/wycontrol/WyPopupBox.h"
#include "WyWidgets/wycontrol/WyPopupWidget.h"
#include "WyWidgets/wycontrol/WyTipWidget.h"

#include <QLabel>

namespace Monkey {

using namespace WyWidgets;

namespace {

ClassEntry arrowWidget()
{
    using C = WyArrowWidget;
    return Describe<C>("WyArrowWidget")
        .call("setStartPos", &C::setStartPos)
        .call("setTriangleInfo", &C::setTriangleInfo)
        .call("setDerection", &C::setDerection)
        .call("setText", &C::setText)
        .call("text", &C::text)
        .call("myMove", &C::myMove);
}

template <typename Bubble>
Describe<Bubble> bubble(const char* name)
{
    return Describe<Bubble>(name)
        .call("setStartPos", &Bubble::setStartPos)
        .call("setTriangleInfo", &Bubble::setTriangleInfo)
        .call("setDerection", &Bubble::setDerection)
        .callWith(
            "SetContentWidget",
            [](Bubble& bubble, Random& random) {
                auto* label = random.oneIn(8) ? nullptr : new QLabel(random.text());
                bubble.SetContentWidget(label, random.point());
            },
            true)
        .call("myMove", &Bubble::myMove)
        .call("setBubbleColor", &Bubble::setBubbleColor)
        .call("setShadowColor", &Bubble::setShadowColor);
}

ClassEntry errorWidget()
{
    using C = WyErrorWidget;
    return Describe<C>("WyErrorWidget")
        .call("SetErrText", &C::SetErrText)
        .call("SetWidgetMaxWidth", &C::SetWidgetMaxWidth)
        .call("SetWidgetFixedWidth", &C::SetWidgetFixedWidth)
        .call("SetErrLabelWrap", &C::SetErrLabelWrap)
        .call("ShowAnimation", &C::ShowAnimation)
        .call("InitAnimation", &C::InitAnimation)
        .call("AdjustLabel", &C::AdjustLabel);
}

ClassEntry popupWidget()
{
    using C = WyPopupWidget;
    return Describe<C>("WyPopupWidget")
        .call("CreateContent", &C::CreateContent)
        .call("setPopup", &C::setPopup)
        .call("StartTimer", &C::StartTimer)
        .call("StopTimer", &C::StopTimer);
}

ClassEntry tipWidget()
{
    using C = WyTipWidget;
    return Describe<C>("WyTipWidget")
        .call("SetText", &C::SetText)
        .call("SetLinkText", &C::SetLinkText)
        .call("StartShowAnimation", &C::StartShowAnimation)
        .call("StartTimer", &C::StartTimer)
        .call("StopTimer", &C::StopTimer);
}

} // namespace

std::vector<ClassEntry> popupClasses()
{
    return {
        arrowWidget(),
        bubble<WyBubbleTip>("WyBubbleTip")
            .call("InitView", &WyBubbleTip::InitView)
            .call("SetBubbleTip", &WyBubbleTip::SetBubbleTip),
        bubble<WyBubbleWidget>("WyBubbleWidget").createdBy([](Random& random, QWidget* parent) -> QObject* {
            return new WyBubbleWidget(random.oneIn(2), parent);
        }),
        errorWidget(),
        Describe<WyPopupBox>("WyPopupBox").call("createContent", &WyPopupBox::createContent),
        popupWidget(),
        tipWidget()};
}

} // namespace Monkey

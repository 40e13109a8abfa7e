// Labels, dots, check boxes, edits, the slider, tabs and busy indicators.

#include "monkey/Catalogue.h"

#include "WyWidgets/wycontrol/WyCheckBox.h"
#include "WyWidgets/wycontrol/WyClearEdit.h"
#include "WyWidgets/wycontrol/WyDotCheckBox.h"
#include "WyWidgets/wycontrol/WyDotLabel.h"
#include "WyWidgets/wycontrol/WyElidedLabel.h"
#include "WyWidgets/wycontrol/WyFlatTab.h"
#include "WyWidgets/wycontrol/WyFlatVTab.h"
#include "WyWidgets/wycontrol/WyHandleSlider.h"
#include "WyWidgets/wycontrol/WyIntValidator.h"
#include "WyWidgets/wycontrol/WyLabel.h"
#include "WyWidgets/wycontrol/WyMenu.h"
#include "WyWidgets/wycontrol/WyPasswordEdit.h"
#include "WyWidgets/wycontrol/WyShortcutEdit.h"
#include "WyWidgets/wycontrol/WyWaitingBar.h"
#include "WyWidgets/wycontrol/WyWaitingSpinnerWidget.h"

namespace Monkey {

using namespace WyWidgets;

namespace {

template <typename Dotted>
ClassEntry dotted(const char* name)
{
    return Describe<Dotted>(name)
        .call("SetDotVisible", &Dotted::SetDotVisible)
        .call("IsDotVisible", &Dotted::IsDotVisible)
        .call("InitView", &Dotted::InitView)
        .call("setText", &Dotted::setText);
}

ClassEntry checkBox()
{
    using C = WyCheckBox;
    return Describe<C>("WyCheckBox")
        .createdBy([](Random& random, QWidget* parent) -> QObject* { return new C(random.text(), parent); })
        .call("wrapLines", &C::wrapLines)
        .call("minimumSizeHint", &C::minimumSizeHint)
        .call("setText", &C::setText);
}

ClassEntry clearEdit()
{
    using C = WyClearEdit;
    return Describe<C>("WyClearEdit")
        .call("InitView", &C::InitView)
        .call("InitConnect", &C::InitConnect)
        .call("setText", &C::setText)
        .call("insert", &C::insert)
        .call("undo", &C::undo)
        .call("setMaxLength", &C::setMaxLength);
}

ClassEntry passwordEdit()
{
    using C = WyPasswordEdit;
    return Describe<C>("WyPasswordEdit")
        .call("InitView", &C::InitView)
        .call("setText", &C::setText)
        .callWith("setEchoMode",
                  [](C& edit, Random& random) {
                      edit.setEchoMode(static_cast<QLineEdit::EchoMode>(random.below(4)));
                  })
        .call("setReadOnly", &C::setReadOnly);
}

ClassEntry shortcutEdit()
{
    using C = WyShortcutEdit;
    return Describe<C>("WyShortcutEdit")
        .call("SetKeySequence", &C::SetKeySequence)
        .call("portableText", &C::portableText)
        .call("setReadOnly", &C::setReadOnly)
        .call("setText", &C::setText)
        .callWith("isOnlyContainsModifiers",
                  [](C&, Random& random) { isOnlyContainsModifiers(random.draw<QKeySequence>()); });
}

/// A validator works in a line edit; the edit is the object here.
ClassEntry validator()
{
    const auto validatorOf = [](QLineEdit& edit) {
        return edit.findChild<WyIntValidator*>();
    };
    return Describe<QLineEdit>("WyIntValidator")
        .createdBy([](Random& random, QWidget* parent) -> QObject* {
            auto* edit = new QLineEdit(parent);
            const int bottom = random.integer();
            edit->setValidator(new WyIntValidator(bottom, random.integer(), edit));
            return edit;
        })
        .callWith(
            "validate",
            [=](QLineEdit& edit, Random& random) {
                QString text = random.text();
                int position = random.integer();
                if (auto* validator = validatorOf(edit))
                    validator->validate(text, position);
            },
            true)
        .callWith(
            "fixup",
            [=](QLineEdit& edit, Random& random) {
                QString text = random.text();
                if (auto* validator = validatorOf(edit))
                    validator->fixup(text);
            },
            true)
        .callWith("setRange",
                  [=](QLineEdit& edit, Random& random) {
                      const int bottom = random.integer();
                      if (auto* validator = validatorOf(edit))
                          validator->setRange(bottom, random.integer());
                  })
        .call("setText", &QLineEdit::setText);
}

ClassEntry slider()
{
    using C = WyHandleSlider;
    return Describe<C>("WyHandleSlider")
        .call("SetMaxValue", &C::SetMaxValue)
        .call("SetSliderPos", &C::SetSliderPos)
        .call("GetSliderPos", &C::GetSliderPos)
        .call("UpdateControlPos", &C::UpdateControlPos)
        .call("MoveToPos", &C::MoveToPos)
        .call("StartTimer", &C::StartTimer)
        .call("StopTimer", &C::StopTimer);
}

ClassEntry flatTab()
{
    using C = WyFlatTab;
    return Describe<C>("WyFlatTab")
        .call("AddTab", &C::AddTab)
        .call("SelectTab", &C::SelectTab)
        .call("CurrentSelect", &C::CurrentSelect)
        .call("UpdateTabText", &C::UpdateTabText)
        .call("SlotUpdateLayout", &C::SlotUpdateLayout)
        .call("SlotGroupButtonClicked", &C::SlotGroupButtonClicked);
}

ClassEntry spinner()
{
    using C = WyWaitingSpinnerWidget;
    return Describe<C>("WyWaitingSpinnerWidget")
        .createdBy([](Random& random, QWidget* parent) -> QObject* {
            const bool centred = random.oneIn(2);
            const bool disables = random.oneIn(4);
            if (random.oneIn(3))
                return new C(static_cast<Qt::WindowModality>(random.below(3)), parent, centred, disables);
            return new C(parent, centred, disables);
        })
        .call("setColor", &C::setColor)
        .call("setRoundness", &C::setRoundness)
        .call("setMinimumTrailOpacity", &C::setMinimumTrailOpacity)
        .call("setTrailFadePercentage", &C::setTrailFadePercentage)
        .call("setRevolutionsPerSecond", &C::setRevolutionsPerSecond)
        .callWith("setNumberOfLines", // many of them, and long ones at that, only take long to paint
                  [](C& spinner, Random& random) {
                      spinner.setNumberOfLines(random.oneIn(20) ? random.integer() : random.below(30));
                  })
        .call("setLineLength", &C::setLineLength)
        .call("setLineWidth", &C::setLineWidth)
        .call("setInnerRadius", &C::setInnerRadius)
        .call("start", &C::start)
        .call("stop", &C::stop)
        .call("rotate", &C::rotate);
}

} // namespace

std::vector<ClassEntry> controlClasses()
{
    return {checkBox(),
            clearEdit(),
            dotted<WyDotCheckBox>("WyDotCheckBox"),
            dotted<WyDotLabel>("WyDotLabel"),
            Describe<WyElidedLabel>("WyElidedLabel")
                .createdBy([](Random& random, QWidget* parent) -> QObject* {
                    return random.oneIn(2) ? new WyElidedLabel(parent)
                                           : new WyElidedLabel(random.text(), parent);
                })
                .call("setText", &WyElidedLabel::setText)
                .call("setPixmap", &WyElidedLabel::setPixmap),
            flatTab(),
            Describe<WyFlatVTab>("WyFlatVTab")
                .call("AddTab", &WyFlatVTab::AddTab)
                .call("SelectTab", &WyFlatVTab::SelectTab)
                .call("SlotGroupButtonClicked", &WyFlatVTab::SlotGroupButtonClicked),
            slider(),
            validator(),
            Describe<WyLabel>("WyLabel")
                .call("setText", &WyLabel::setText)
                .call("slotClicked", &WyLabel::slotClicked),
            Describe<WyMenu>("WyMenu")
                .callWith(
                    "addAction", [](WyMenu& menu, Random& random) { menu.addAction(random.text()); }, true)
                .callWith("popup",
                          [](WyMenu& menu, Random& random) {
                              menu.popup({random.length(), 10});
                          }),
            passwordEdit(),
            shortcutEdit(),
            Describe<WyWaitingBar>("WyWaitingBar")
                .call("setColor", &WyWaitingBar::setColor)
                .call("setRoundness", &WyWaitingBar::setRoundness)
                .call("start", &WyWaitingBar::start)
                .call("stop", &WyWaitingBar::stop)
                .call("SlotTimeout", &WyWaitingBar::SlotTimeout),
            spinner()};
}

} // namespace Monkey

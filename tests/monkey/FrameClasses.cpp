// Windows, their bars, native helpers, the flow layout and the selection frame.

#include "monkey/Catalogue.h"

#include "WyWidgets/frame/WyDialog.h"
#include "WyWidgets/frame/WyDialogBar.h"
#include "WyWidgets/frame/WyMainWindow.h"
#include "WyWidgets/frame/WyMoveableFrame.h"
#include "WyWidgets/frame/WyShadowWidget.h"
#include "WyWidgets/frame/WyTransWidget.h"
#include "WyWidgets/frame/WyWidgetUtils.h"
#include "WyWidgets/frame/WyWindowBar.h"
#include "WyWidgets/layout/WyFlowLayout.h"
#include "WyWidgets/layout/WySelectFrame.h"

#include <QLabel>
#include <QPushButton>

namespace Monkey {

using namespace WyWidgets;

namespace {

ClassEntry dialog()
{
    using C = WyDialog;
    return Describe<C>("WyDialog")
        .createdBy([](Random& random, QWidget* parent) -> QObject* {
            return random.oneIn(2) ? new C(parent) : new C(random.oneIn(2), parent);
        })
        .endsLater()
        .call("installWindowAgent", &C::installWindowAgent)
        .call("createContent", &C::createContent)
        .call("GetTitleBar", &C::GetTitleBar)
        .call("registHitTestVisible", &C::registHitTestVisible)
        .call("GetContentWidget", &C::GetContentWidget)
        .call("ShowMask", &C::ShowMask)
        .call("setShadowActiveColor", &C::setShadowActiveColor)
        .call("setShadowDeactiveColor", &C::setShadowDeactiveColor)
        .call("SlotHideMask", &C::SlotHideMask)
        .callWith("add close button",
                  [](C& dialog, Random&) {
                      auto* button = new QPushButton(dialog.GetTitleBar());
                      button->setObjectName(QStringLiteral("dialog_close"));
                  })
        .callWith("done", [](C& dialog, Random& random) { dialog.done(random.below(3)); });
}

ClassEntry mainWindow()
{
    using C = WyMainWindow;
    return Describe<C>("WyMainWindow")
        .call("installWindowAgent", &C::installWindowAgent)
        .call("registTitleBar", &C::registTitleBar)
        .call("registMaxButton", &C::registMaxButton)
        .call("registHitTestVisible", &C::registHitTestVisible)
        .call("setSystemButtonsVisible", &C::setSystemButtonsVisible)
        .callWith("set title bar", [](C& window, Random&) {
            auto* bar = new WyWindowBar(&window);
            bar->InitSysButton();
            window.setMenuWidget(bar);
            window.registTitleBar(bar);
        });
}

ClassEntry windowBar()
{
    using C = WyWindowBar;
    return Describe<C>("WyWindowBar")
        .callWith(
            "AddWidgetToLeft",
            [](C& bar, Random& random) {
                auto* label = random.oneIn(10) ? nullptr : new QLabel(random.text(), &bar);
                bar.AddWidgetToLeft(label, random.integer(), random.draw<Qt::Alignment>());
            },
            true)
        .call("AddToolButton", &C::AddToolButton)
        .call("AddSeparator", &C::AddSeparator)
        .call("SetChildVisible", &C::SetChildVisible)
        .call("IsChildVisible", &C::IsChildVisible)
        .call("InitSysButton", &C::InitSysButton)
        .call("toggleMaxState", &C::toggleMaxState);
}

ClassEntry transWidget()
{
    using C = WyTransWidget;
    return Describe<C>("WyTransWidget")
        .call("SetWidgetIgnoresMouseEvents", qOverload<bool>(&C::SetWidgetIgnoresMouseEvents))
        .call("SetWidgetIgnoresMouseEvents of", qOverload<QWidget*, bool>(&C::SetWidgetIgnoresMouseEvents))
        .call("SetWidgetStaysOnTop", qOverload<bool>(&C::SetWidgetStaysOnTop))
        .call("SetWidgetStaysOnTop of", qOverload<QWidget*, bool, bool>(&C::SetWidgetStaysOnTop))
        .call("SetHasShadow", qOverload<bool>(&C::SetHasShadow))
        .call("SetHasShadow of", qOverload<QWidget*, bool>(&C::SetHasShadow))
        .call("StartNativeSystemMove", &C::StartNativeSystemMove)
        .call("SetMiniaturizable", &C::SetMiniaturizable);
}

ClassEntry shadowWidget()
{
    using C = WyShadowWidget;
    return Describe<C>("WyShadowWidget").call("setShadowColor", &C::setShadowColor);
}

/// The static helpers hang on a plain label.
ClassEntry widgetUtils()
{
    using U = WyWidgetUtils;
    return Describe<QLabel>("WyWidgetUtils")
        .call("RegisterShortcuts", &U::RegisterShortcuts)
        .call("GetDpiScale", &U::GetDpiScale)
        .call("ScaledRect", &U::ScaledRect)
        .call("ScaledRectF", &U::ScaledRectF)
        .call("GetScreenGeometry", &U::GetScreenGeometry)
        .call("GetAllScreenGeometry", &U::GetAllScreenGeometry)
        .call("MapToGlobal", &U::MapToGlobal)
        .call("MapToParent", &U::MapToParent)
        .callWith("RefreshStyle",
                  [](QLabel& label, Random& random) {
                      const char* names[] = {"active", "monkey", ""};
                      U::RefreshStyle(random.oneIn(9) ? nullptr : &label, names[random.below(3)],
                                      random.variant());
                  })
        .call("ToolTipWrap", &U::ToolTipWrap)
        .callWith(
            "updateStyle",
            [](QLabel& label, Random& random) {
                const QString normal = random.text();
                updateStyle(random.oneIn(9) ? nullptr : &label, normal, random.text());
            },
            true)
        .callWith("CreatePoint", [](QLabel& label, Random&) { CreatePoint(&label); })
        .callWith("CreateVPoint", [](QLabel& label, Random&) { CreateVPoint(&label); })
        .callWith("CreateHPoint", [](QLabel& label, Random&) { CreateHPoint(&label); });
}

ClassEntry moveableFrame()
{
    using C = WyMoveableFrame;
    return Describe<C>("WyMoveableFrame").createdBy([](Random& random, QWidget* parent) -> QObject* {
        return new C(static_cast<C::FrameDirection>(random.below(2)), parent);
    });
}

ClassEntry selectFrame()
{
    using C = WySelectFrame;
    return Describe<C>("WySelectFrame")
        .createdBy([](Random& random, QWidget* parent) -> QObject* {
            return new C(static_cast<C::FrameType>(random.below(4)), parent);
        })
        .call("InitView", &C::InitView)
        .call("SetFrameColor", &C::SetFrameColor)
        .call("SetText", &C::SetText)
        .call("SetFrameEnabled", &C::SetFrameEnabled)
        .call("SetFrameScale", &C::SetFrameScale)
        .call("SetMoveHandleVisible", &C::SetMoveHandleVisible)
        .call("GetCursorDirect", &C::GetCursorDirect)
        .call("GetRectVaild", &C::GetRectVaild);
}

/// A flow layout needs a widget; the widget is the object here.
ClassEntry flowLayout()
{
    const auto layoutOf = [](QWidget& widget) {
        return dynamic_cast<WyFlowLayout*>(widget.layout());
    };
    return Describe<QWidget>("WyFlowLayout")
        .createdBy([](Random& random, QWidget* parent) -> QObject* {
            auto* widget = new QWidget(parent);
            const int margin = random.integer();
            const int horizontal = random.integer();
            new WyFlowLayout(widget, margin, horizontal, random.integer());
            return widget;
        })
        .callWith(
            "addWidget",
            [=](QWidget& widget, Random& random) {
                if (auto* layout = layoutOf(widget))
                    layout->addWidget(new QLabel(random.text(), &widget));
            },
            true)
        .callWith("addItem",
                  [=](QWidget& widget, Random& random) {
                      if (auto* layout = layoutOf(widget))
                          layout->addItem(random.oneIn(4)
                                              ? nullptr
                                              : new QSpacerItem(random.integer(), random.integer()));
                  })
        .callWith("add a layout",
                  [=](QWidget& widget, Random& random) {
                      if (auto* layout = layoutOf(widget))
                          layout->addItem(new WyFlowLayout(random.integer()));
                  })
        .callWith("takeAt",
                  [=](QWidget& widget, Random& random) {
                      if (auto* layout = layoutOf(widget))
                          delete layout->takeAt(random.oneIn(3) ? random.integer() : 0);
                  })
        .callWith("itemAt",
                  [=](QWidget& widget, Random& random) {
                      if (auto* layout = layoutOf(widget))
                          layout->itemAt(random.integer());
                  })
        .callWith("heightForWidth",
                  [=](QWidget& widget, Random& random) {
                      if (auto* layout = layoutOf(widget))
                          layout->heightForWidth(random.integer());
                  })
        .callWith("setGeometry",
                  [=](QWidget& widget, Random& random) {
                      if (auto* layout = layoutOf(widget))
                          layout->setGeometry(random.draw<QRect>());
                  })
        .callWith("setSpacing",
                  [=](QWidget& widget, Random& random) {
                      if (auto* layout = layoutOf(widget))
                          layout->setSpacing(random.integer());
                  })
        .callWith("sizes", [=](QWidget& widget, Random&) {
            if (auto* layout = layoutOf(widget)) {
                layout->sizeHint();
                layout->minimumSize();
                layout->invalidate();
            }
        });
}

} // namespace

std::vector<ClassEntry> frameClasses()
{
    return {dialog(),
            Describe<WyDialogBar>("WyDialogBar")
                .call("SetTitle", &WyDialogBar::SetTitle)
                .call("GetCloseButton", &WyDialogBar::GetCloseButton)
                .call("SlotWindowActive", &WyDialogBar::SlotWindowActive),
            mainWindow(),
            windowBar(),
            transWidget(),
            shadowWidget(),
            widgetUtils(),
            moveableFrame(),
            selectFrame(),
            flowLayout()};
}

} // namespace Monkey

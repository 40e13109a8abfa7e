#include "WyWidgetsDesigner.h"

#include "FormWidget.h"

#include <WyWidgets/WyAnimationButton.h>
#include <WyWidgets/WyArrowWidget.h>
#include <WyWidgets/WyBubbleButton.h>
#include <WyWidgets/WyClearEdit.h>
#include <WyWidgets/WyDialogBar.h>
#include <WyWidgets/WyDotButton.h>
#include <WyWidgets/WyDotCheckBox.h>
#include <WyWidgets/WyDotLabel.h>
#include <WyWidgets/WyElidedLabel.h>
#include <WyWidgets/WyErrorWidget.h>
#include <WyWidgets/WyFlatTab.h>
#include <WyWidgets/WyFlatVTab.h>
#include <WyWidgets/WyGifButton.h>
#include <WyWidgets/WyGifLabel.h>
#include <WyWidgets/WyHandleSlider.h>
#include <WyWidgets/WyHoverButton.h>
#include <WyWidgets/WyImageButton.h>
#include <WyWidgets/WyLabel.h>
#include <WyWidgets/WyLoadBox.h>
#include <WyWidgets/WyPasswordEdit.h>
#include <WyWidgets/WyShadowButton.h>
#include <WyWidgets/WyShadowWidget.h>
#include <WyWidgets/WyShortcutEdit.h>
#include <WyWidgets/WyTipWidget.h>
#include <WyWidgets/WyTransWidget.h>
#include <WyWidgets/WyWaitingBar.h>
#include <WyWidgets/WyWaitingSpinnerWidget.h>
#include <WyWidgets/WyWindowBar.h>

using namespace WyWidgets;

namespace {

template <typename Widget>
QWidget* create(QWidget* parent)
{
    return new Widget(parent);
}

template <typename Tabs>
QWidget* createWithTabs(QWidget* parent)
{
    auto* tabs = new Tabs(parent);
    for (const char* text : {"First", "Second", "Third"})
        tabs->AddTab(QString::fromUtf8(text));
    return tabs;
}

QWidget* createWithErrorText(QWidget* parent)
{
    auto* error = new WyErrorWidget(parent);
    error->SetErrText(QStringLiteral("What is wrong"));
    return error;
}

QWidget* createWithButtonText(QWidget* parent)
{
    auto* button = new WyShadowButton(parent);
    button->SetButtonText(QStringLiteral("Button"));
    return button;
}

QWidget* createWithTitle(QWidget* parent)
{
    auto* bar = new WyDialogBar(parent);
    bar->SetTitle(QStringLiteral("Title"));
    return bar;
}

QWidget* createWithNotice(QWidget* parent)
{
    auto* notice = new WyTipWidget(parent);
    notice->SetText(QStringLiteral("A notice"));
    notice->SetLinkText(QStringLiteral("Left"), QStringLiteral("Right"));
    return notice;
}

/// A spinner is hidden until it is started. This one turns where the form puts it, not over the centre of its
/// parent.
QWidget* createStartedSpinner(QWidget* parent)
{
    auto* spinner = new WyWaitingSpinnerWidget(parent, false, false);
    spinner->start();
    return spinner;
}

template <typename Widget>
FormWidget::Description described(const char* purpose, QSize size,
                                  FormWidget::Create createForEditing = nullptr)
{
    return {QString::fromLatin1(Widget::staticMetaObject.className()), purpose, size, create<Widget>,
            createForEditing};
}

template <typename Widget>
FormWidget::Description describedWithText(const char* purpose, QSize size, const char* text)
{
    FormWidget::Description description = described<Widget>(purpose, size);
    description.text = text;
    return description;
}

template <typename Widget>
FormWidget::Description describedContainer(const char* purpose, QSize size)
{
    FormWidget::Description description = described<Widget>(purpose, size);
    description.isContainer = true;
    return description;
}

/// Classes that are windows, or that need more than a parent to be made (a text, a type, a direction), are
/// not here: the code that uic writes for a form passes a parent only.
QVector<FormWidget::Description> descriptions()
{
    return {
        describedWithText<WyAnimationButton>("Push button that counts down or shows growing dots", {120, 32},
                                             "Send code"),
        described<WyArrowWidget>("Text in a box with an arrow", {200, 100}),
        describedWithText<WyBubbleButton>("Push button that shows a bubble under the pointer", {100, 32},
                                          "Bubble"),
        described<WyClearEdit>("Line edit with a clear button", {160, 32}),
        described<WyDialogBar>("Title bar of a dialog", {320, 32}, createWithTitle),
        describedWithText<WyDotButton>("Push button with a marker dot", {100, 32}, "Inbox"),
        describedWithText<WyDotCheckBox>("Check box with a marker dot", {120, 32}, "News"),
        describedWithText<WyDotLabel>("Label with a marker dot", {100, 32}, "Inbox"),
        describedWithText<WyElidedLabel>("Label that elides its text at the right", {140, 24},
                                         "A text that may be too long"),
        described<WyErrorWidget>("Inline error message", {200, 32}, createWithErrorText),
        described<WyFlatTab>("Tab strip with a gliding underline", {240, 40}, createWithTabs<WyFlatTab>),
        described<WyFlatVTab>("Vertical tab list with a gliding marker", {190, 160},
                              createWithTabs<WyFlatVTab>),
        describedWithText<WyGifButton>("Push button with a spinner while busy", {120, 32}, "Load"),
        described<WyGifLabel>("Label that plays a numbered image sequence", {32, 32}),
        described<WyHandleSlider>("Seek bar whose handle shows under the pointer", {200, 16}),
        describedWithText<WyHoverButton>("Push button that reports the pointer entering and leaving",
                                         {100, 32}, "Hover"),
        describedWithText<WyImageButton>("Push button with an image for each state", {120, 32}, "Image"),
        describedWithText<WyLabel>("Label that reports presses", {100, 24}, "Label"),
        described<WyLoadBox>("Busy overlay that ends by itself after three minutes", {120, 80}),
        described<WyPasswordEdit>("Password edit with a show and hide toggle", {160, 32}),
        described<WyShadowButton>("Push button with a shadow around it", {120, 40}, createWithButtonText),
        describedContainer<WyShadowWidget>("Container with a soft shadow", {200, 140}),
        described<WyShortcutEdit>("Edit that records a keyboard shortcut", {160, 32}),
        described<WyTipWidget>("Notice bar with two links", {320, 40}, createWithNotice),
        describedContainer<WyTransWidget>("Container with native window calls", {200, 140}),
        described<WyWaitingBar>("Busy bar with a sweeping highlight", {200, 12}),
        described<WyWaitingSpinnerWidget>("Busy spinner", {40, 40}, createStartedSpinner),
        described<WyWindowBar>("Title bar of a main window", {480, 40}),
    };
}

} // namespace

WyWidgetsDesigner::WyWidgetsDesigner(QObject* parent) : QObject(parent)
{
    const QVector<FormWidget::Description> all = descriptions();
    for (const FormWidget::Description& description : all)
        m_widgets.append(new FormWidget(description, this));
}

QList<QDesignerCustomWidgetInterface*> WyWidgetsDesigner::customWidgets() const
{
    return m_widgets;
}

#include "Pages.h"

#include "pages/BusyImagesPage.h"
#include "pages/BusyPage.h"
#include "pages/ButtonsPage.h"
#include "pages/EditsPage.h"
#include "pages/ErrorsPage.h"
#include "pages/FlowLayoutPage.h"
#include "pages/LabelsPage.h"
#include "pages/PopupsPage.h"
#include "pages/SelectionPage.h"
#include "pages/SimpleToastsPage.h"
#include "pages/SliderTabsPage.h"
#include "pages/TipsPage.h"
#include "pages/ToastsPage.h"
#include "pages/UtilitiesPage.h"
#include "pages/WelcomePage.h"
#include "pages/WindowsPage.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

template <typename Page>
GalleryPage* create()
{
    return new Page;
}

QString name(const char* text)
{
    return QCoreApplication::translate("Pages", text);
}

} // namespace

bool PageEntry::matches(const QString& words) const
{
    const QString where = name + QLatin1Char(' ') + classes.join(QLatin1Char(' '));
    const QStringList wanted = words.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return std::all_of(wanted.begin(), wanted.end(),
                       [&](const QString& word) { return where.contains(word, Qt::CaseInsensitive); });
}

QVector<PageEntry> allPages()
{
    return {
        {name(QT_TRANSLATE_NOOP("Pages", "Welcome")), create<WelcomePage>, {}, QStringLiteral("page-home")},
        {name(QT_TRANSLATE_NOOP("Pages", "Windows")),
         create<WindowsPage>,
         {QStringLiteral("WyMainWindow"), QStringLiteral("WyWindowBar"), QStringLiteral("WyDialog"),
          QStringLiteral("WyDialogBar")},
         QStringLiteral("page-windows")},
        {name(QT_TRANSLATE_NOOP("Pages", "Toasts")),
         create<ToastsPage>,
         {QStringLiteral("WyToast"), QStringLiteral("WyToastWidget")},
         QStringLiteral("page-toasts")},
        {name(QT_TRANSLATE_NOOP("Pages", "Simple toasts")),
         create<SimpleToastsPage>,
         {QStringLiteral("WySimpleToast")},
         QStringLiteral("page-simple-toasts")},
        {name(QT_TRANSLATE_NOOP("Pages", "Tips and bubbles")),
         create<TipsPage>,
         {QStringLiteral("WyArrowWidget"), QStringLiteral("WyTipWidget"), QStringLiteral("WyBubbleTip"),
          QStringLiteral("WyBubbleWidget"), QStringLiteral("WyBubbleButton")},
         QStringLiteral("page-tips")},
        {name(QT_TRANSLATE_NOOP("Pages", "Popups")),
         create<PopupsPage>,
         {QStringLiteral("WyPopupBox"), QStringLiteral("WyPopupWidget")},
         QStringLiteral("page-popups")},
        {name(QT_TRANSLATE_NOOP("Pages", "Errors")),
         create<ErrorsPage>,
         {QStringLiteral("WyErrorWidget")},
         QStringLiteral("page-errors")},
        {name(QT_TRANSLATE_NOOP("Pages", "Busy")),
         create<BusyPage>,
         {QStringLiteral("WyWaitingSpinnerWidget"), QStringLiteral("WyWaitingBar")},
         QStringLiteral("page-busy")},
        {name(QT_TRANSLATE_NOOP("Pages", "Busy images")),
         create<BusyImagesPage>,
         {QStringLiteral("WyGifLabel"), QStringLiteral("WyLoadBox"), QStringLiteral("WyGifButton")},
         QStringLiteral("page-images")},
        {name(QT_TRANSLATE_NOOP("Pages", "Buttons")),
         create<ButtonsPage>,
         {QStringLiteral("WyAnimationButton"), QStringLiteral("WyHoverButton"),
          QStringLiteral("WyImageButton"), QStringLiteral("WyShadowButton")},
         QStringLiteral("page-buttons")},
        {name(QT_TRANSLATE_NOOP("Pages", "Labels and checks")),
         create<LabelsPage>,
         {QStringLiteral("WyLabel"), QStringLiteral("WyElidedLabel"), QStringLiteral("WyDotButton"),
          QStringLiteral("WyDotCheckBox"), QStringLiteral("WyDotLabel"), QStringLiteral("WyCheckBox"),
          QStringLiteral("WyMenu")},
         QStringLiteral("page-labels")},
        {name(QT_TRANSLATE_NOOP("Pages", "Edits")),
         create<EditsPage>,
         {QStringLiteral("WyClearEdit"), QStringLiteral("WyPasswordEdit"), QStringLiteral("WyShortcutEdit"),
          QStringLiteral("WyIntValidator")},
         QStringLiteral("page-edits")},
        {name(QT_TRANSLATE_NOOP("Pages", "Slider and tabs")),
         create<SliderTabsPage>,
         {QStringLiteral("WyHandleSlider"), QStringLiteral("WyFlatTab"), QStringLiteral("WyFlatVTab")},
         QStringLiteral("page-slider")},
        {name(QT_TRANSLATE_NOOP("Pages", "Flow layout")),
         create<FlowLayoutPage>,
         {QStringLiteral("WyFlowLayout")},
         QStringLiteral("page-flow")},
        {name(QT_TRANSLATE_NOOP("Pages", "Selection")),
         create<SelectionPage>,
         {QStringLiteral("WySelectFrame")},
         QStringLiteral("page-selection")},
        {name(QT_TRANSLATE_NOOP("Pages", "Utilities")),
         create<UtilitiesPage>,
         {QStringLiteral("WyWidgetUtils"), QStringLiteral("WyShadowWidget"),
          QStringLiteral("WyMoveableFrame")},
         QStringLiteral("page-screens")},
    };
}

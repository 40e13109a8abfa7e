#include "WyWidgets/wycontrol/WyPasswordEdit.h"

#include "WyWidgets/internal/edits/EndButton.h"
#include "WyWidgets/internal/widgets/OwnTexts.h"

namespace WyWidgets {

namespace {

constexpr int kSwitchSizePx = 16;
constexpr QMargins kMarginsPx(12, 0, 12, 0);

QString switchName()
{
    return QStringLiteral("edit_psw_switch");
}

} // namespace

WyPasswordEdit::WyPasswordEdit(QWidget* parent) : QLineEdit(parent)
{
    InitView();
}

void WyPasswordEdit::InitView()
{
    QPushButton* passwordSwitch = placeEndButton(this, {switchName(), kSwitchSizePx, kMarginsPx});
    showInClear(passwordSwitch && passwordSwitch->isChecked());
    if (!passwordSwitch)
        return;
    passwordSwitch->setCheckable(true);
    OwnTexts::of(passwordSwitch)->offerName([] { return tr("Show password"); });
    connect(passwordSwitch, &QPushButton::toggled, this, &WyPasswordEdit::showInClear, Qt::UniqueConnection);
}

void WyPasswordEdit::showInClear(bool inClear)
{
    setEchoMode(inClear ? Normal : Password);
    if (auto* passwordSwitch = findChild<QPushButton*>(switchName(), Qt::FindDirectChildrenOnly))
        OwnTexts::of(passwordSwitch)->offerToolTip([inClear] {
            return inClear ? tr("Hide password") : tr("Show password");
        });
}

} // namespace WyWidgets

#include "WyWidgets/wycontrol/WyPasswordEdit.h"

#include "WyWidgets/internal/edits/EndButton.h"
#include "WyWidgets/internal/widgets/OwnTexts.h"

namespace WyWidgets {

namespace {

constexpr int kSwitchSizePx = 16;
constexpr QMargins kMarginsPx(12, 0, 12, 0);

} // namespace

WyPasswordEdit::WyPasswordEdit(QWidget* parent) : QLineEdit(parent)
{
    InitView();
}

void WyPasswordEdit::InitView()
{
    m_switch = placeEndButton(this, {QStringLiteral("edit_psw_switch"), kSwitchSizePx, kMarginsPx});
    if (m_switch) {
        m_switch->setCheckable(true);
        OwnTexts::of(m_switch)->setName([] { return tr("Show password"); });
        connect(m_switch, &QPushButton::toggled, this, &WyPasswordEdit::showInClear, Qt::UniqueConnection);
    }
    showInClear(m_switch && m_switch->isChecked());
}

void WyPasswordEdit::showInClear(bool inClear)
{
    setEchoMode(inClear ? Normal : Password);
    if (m_switch)
        OwnTexts::of(m_switch)->setToolTip(
            [inClear] { return inClear ? tr("Hide password") : tr("Show password"); });
}

} // namespace WyWidgets

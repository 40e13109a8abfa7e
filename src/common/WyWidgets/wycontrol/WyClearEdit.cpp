#include "WyWidgets/wycontrol/WyClearEdit.h"

#include "WyWidgets/internal/edits/EndButton.h"
#include "WyWidgets/internal/widgets/OwnTexts.h"

namespace WyWidgets {

namespace {

constexpr int kButtonSizePx = 20;
constexpr QMargins kMarginsPx(0, 0, 6, 0);

} // namespace

WyClearEdit::WyClearEdit(QWidget* parent) : QLineEdit(parent)
{
    InitView();
    InitConnect();
}

void WyClearEdit::InitView()
{
    m_clearButton = placeEndButton(this, {QStringLiteral("edit_button_clear"), kButtonSizePx, kMarginsPx});
    if (!m_clearButton)
        return;
    m_clearButton->setAttribute(Qt::WA_LayoutUsesWidgetRect);
    OwnTexts* texts = OwnTexts::of(m_clearButton);
    texts->offerName([] { return tr("Clear"); });
    texts->offerToolTip([] { return tr("Clear"); });
    followText(text());
}

void WyClearEdit::InitConnect()
{
    connect(this, &QLineEdit::textChanged, this, &WyClearEdit::followText, Qt::UniqueConnection);
    if (m_clearButton)
        connect(m_clearButton, &QPushButton::clicked, this, &QLineEdit::clear, Qt::UniqueConnection);
}

void WyClearEdit::followText(const QString& text)
{
    if (m_clearButton)
        m_clearButton->setVisible(!text.trimmed().isEmpty());
}

} // namespace WyWidgets

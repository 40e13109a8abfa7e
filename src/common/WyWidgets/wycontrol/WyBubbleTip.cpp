#include "WyWidgets/wycontrol/WyBubbleTip.h"

#include <QLabel>
#include <QVBoxLayout>

namespace WyWidgets {

namespace {

constexpr int kPaddingPx = 10;
constexpr int kSmallestTextWidthPx = 96;

QLabel* textLabelOf(const WyBubbleTip* tip)
{
    return tip->findChild<QLabel*>(QStringLiteral("label_text"));
}

} // namespace

WyBubbleTip::WyBubbleTip(QWidget* parent) : WyBubbleWidget(false, parent)
{
    setAttribute(Qt::WA_StyledBackground);
    InitView();
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

void WyBubbleTip::InitView()
{
    if (textLabelOf(this))
        return;
    auto* content = new QWidget(this);
    auto* contentLayout = new QVBoxLayout(content);
    contentLayout->setContentsMargins(kPaddingPx, kPaddingPx, kPaddingPx, kPaddingPx);
    contentLayout->setSpacing(0);
    auto* label = new QLabel;
    label->setObjectName(QStringLiteral("label_text"));
    label->setMinimumWidth(kSmallestTextWidthPx);
    label->setWordWrap(true);
    contentLayout->addWidget(label);
    SetContentWidget(content, QPoint(kPaddingPx, kPaddingPx));
}

void WyBubbleTip::SetBubbleTip(const QString& text)
{
    if (QLabel* label = textLabelOf(this))
        label->setText(text);
}

} // namespace WyWidgets

#include "WyWidgets/wycontrol/WyToastWidget.h"

#include "WyWidgets/internal/accessibility/Accessibility.h"
#include "WyWidgets/internal/text/Markup.h"
#include "WyWidgets/internal/widgets/OwnTexts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStyleOption>
#include <QTimer>

namespace WyWidgets {

namespace {

constexpr int kMarginPx = 8;
constexpr int kSpacingPx = 8;
constexpr int kIconSizePx = 16;

} // namespace

WyToastWidget::WyToastWidget(QWidget* parent)
    : QWidget(parent, Qt::ToolTip | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint)
{
    offerAccessibility();
    setAttribute(Qt::WA_StyledBackground);
    setAttribute(Qt::WA_TranslucentBackground);
    InitView();
}

void WyToastWidget::InitView()
{
    if (layout())
        return;
    auto* mainLayout = new QHBoxLayout(this);
    mainLayout->setObjectName(QStringLiteral("main_layout"));
    mainLayout->setContentsMargins(kMarginPx, kMarginPx, kMarginPx, kMarginPx);
    mainLayout->setSpacing(kSpacingPx);
    mainLayout->setSizeConstraint(QLayout::SetFixedSize);
    auto* icon = new QLabel(this);
    icon->setObjectName(QStringLiteral("label_icon"));
    icon->setFixedSize(kIconSizePx, kIconSizePx);
    mainLayout->addWidget(icon);
    icon->hide();
    m_label = new QLabel(this);
    m_label->setObjectName(QStringLiteral("label_toast"));
    m_label->setAlignment(Qt::AlignCenter);
    mainLayout->addWidget(m_label);
}

void WyToastWidget::SetText(const QString& text)
{
    if (!m_label)
        return;
    m_label->setText(text);
    OwnTexts::of(this)->offerName([name = withoutMarkup(text)] { return name; });
}

void WyToastWidget::ShowToastText(const QPoint& pos, const QString& text, int msec)
{
    auto* toast = new WyToastWidget;
    const QPointer<WyToastWidget> alive(toast); // handlers of the host may delete it
    toast->setAttribute(Qt::WA_DeleteOnClose);
    toast->SetText(text);
    toast->move(pos);
    toast->show();
    if (!alive)
        return;
    QTimer::singleShot(qMax(0, msec), toast, &QWidget::close);
    tellAlert(toast);
}

void WyToastWidget::paintEvent(QPaintEvent*)
{
    // Qt leaves the styled background of a translucent window unpainted.
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}

} // namespace WyWidgets

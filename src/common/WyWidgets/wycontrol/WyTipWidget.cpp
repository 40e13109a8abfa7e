#include "WyWidgets/wycontrol/WyTipWidget.h"

#include "WyWidgets/internal/accessibility/Accessibility.h"
#include "WyWidgets/internal/widgets/Fades.h"
#include "WyWidgets/internal/widgets/Timers.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QParallelAnimationGroup>
#include <QPushButton>

namespace WyWidgets {

namespace {

constexpr qreal kHiddenOpacity = 0.1;
constexpr int kShownOpacity = 1; // a whole number among real ones: the animation converts it
constexpr int kFadeInMs = 500;
constexpr int kShowMs = 3500;
constexpr int kLeaveMs = 2000;
constexpr int kSpacingPx = 8;

void setLinkText(QPushButton* link, const QString& text)
{
    if (!link)
        return;
    if (text.isEmpty())
        link->setVisible(false);
    else
        link->setText(text);
}

} // namespace

WyTipWidget::WyTipWidget(QWidget* parent) : QWidget(parent)
{
    offerAccessibility();
    setAttribute(Qt::WA_StyledBackground);
    installOpacityEffect(this, kHiddenOpacity);
    auto* mainLayout = new QHBoxLayout(this);
    mainLayout->setObjectName(QStringLiteral("main_layout"));
    mainLayout->setContentsMargins(kSpacingPx, kSpacingPx, kSpacingPx, kSpacingPx);
    mainLayout->setSpacing(kSpacingPx);
    createText();
    m_leftLinkButton = createLink(SIGNAL(SignalClickedLeftLink()));
    m_rightLinkButton = createLink(SIGNAL(SignalClickedRightLink()));
    mainLayout->setSizeConstraint(QLayout::SetFixedSize);
}

WyTipWidget::~WyTipWidget()
{
    endRunningAnimations(this);
}

void WyTipWidget::SetText(const QString& text)
{
    if (m_textLabel)
        m_textLabel->setText(text);
}

void WyTipWidget::SetLinkText(const QString& left, const QString& right)
{
    setLinkText(m_leftLinkButton, left);
    setLinkText(m_rightLinkButton, right);
}

void WyTipWidget::StartShowAnimation()
{
    QGraphicsOpacityEffect* effect = installOpacityEffect(this, kShownOpacity);
    QPropertyAnimation* fade = createOpacityFade(effect, kFadeInMs, kHiddenOpacity, kShownOpacity);
    fade->setEasingCurve(QEasingCurve::OutQuad);
    QParallelAnimationGroup* group = createFadeGroup(this, fade);
    connect(group, SIGNAL(finished()), group, SLOT(deleteLater()));
    group->start();
    StartTimer(kShowMs);
}

void WyTipWidget::StartTimer(int msec)
{
    if (!m_timer)
        m_timer = createSingleShot(this, SLOT(deleteLater()));
    startIfIdle(m_timer, msec);
}

void WyTipWidget::StopTimer()
{
    stopIfActive(m_timer);
}

void WyTipWidget::enterEvent(QEvent* event)
{
    QWidget::enterEvent(event);
    StopTimer();
}

void WyTipWidget::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    StartTimer(kLeaveMs);
}

void WyTipWidget::createText()
{
    m_textLabel = new QLabel;
    m_textLabel->setObjectName(QStringLiteral("label_text"));
    m_textLabel->setWordWrap(false);
    m_textLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_textLabel->adjustSize();
    layout()->addWidget(m_textLabel);
}

QPushButton* WyTipWidget::createLink(const char* clickedSignal)
{
    auto* link = new QPushButton;
    // Both links share the name on purpose: one style rule serves them.
    link->setObjectName(QStringLiteral("button_link_underline"));
    layout()->addWidget(link);
    // In this order: a slot of the tip's signal still meets a living tip.
    connect(link, SIGNAL(clicked()), this, clickedSignal);
    connect(link, SIGNAL(clicked()), this, SLOT(deleteLater()));
    return link;
}

} // namespace WyWidgets

#include "WyWidgets/wycontrol/WyErrorWidget.h"

#include "WyWidgets/internal/accessibility/Accessibility.h"
#include "WyWidgets/internal/widgets/Fades.h"
#include "WyWidgets/internal/widgets/OwnTexts.h"
#include "WyWidgets/internal/widgets/Timers.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QParallelAnimationGroup>
#include <QSequentialAnimationGroup>

namespace WyWidgets {

namespace {

constexpr int kMarginPx = 8;
constexpr int kSpacingPx = 8;
constexpr int kIconSizePx = 16;
constexpr int kFadeInMs = 400;
constexpr int kFadeOutMs = 1000;
constexpr int kMoveMs = 1000;
constexpr int kPauseMs = 500;
constexpr int kHideAfterMs = 5000;

/// Qt complains about widths outside its own range.
int widgetWidth(int width)
{
    return qBound(0, width, QWIDGETSIZE_MAX);
}

int lineHeight(const QFontMetrics& metrics)
{
    // The smaller of both, for the last line of a measured text goes without its leading: two lines always
    // count as two.
    return qMax(1, qMin(metrics.height(), metrics.lineSpacing()));
}

QPropertyAnimation* createMove(QWidget* target, const QByteArray& property, const QVariant& from,
                               const QVariant& to)
{
    auto* move = new QPropertyAnimation(target, property);
    move->setDuration(kMoveMs);
    move->setEasingCurve(QEasingCurve::InOutQuad);
    move->setStartValue(from);
    move->setEndValue(to);
    return move;
}

// The error widget carries two movements and a fade-out that nothing starts: derived classes and hosts find
// them among its children.

QAbstractAnimation* createGrowing(QWidget* target)
{
    const QRect small(190, 230, 0, 0);
    const QRect large(120, 160, 140, 140);
    auto* growing = new QSequentialAnimationGroup;
    growing->addAnimation(createMove(target, "geometry", small, large));
    growing->addAnimation(createMove(target, "geometry", large, small));
    return growing;
}

QAbstractAnimation* createFalling(QWidget* target)
{
    auto* falling = new QSequentialAnimationGroup;
    falling->addPause(kPauseMs);
    falling->addAnimation(createMove(target, "pos", QPoint(360, 10), QPoint(360, 350)));
    return falling;
}

/// Starts the fade, anew if it is under way. Its slots may delete it.
void startOver(QAbstractAnimation* animation)
{
    const QPointer<QAbstractAnimation> fade(animation);
    if (fade)
        fade->stop();
    if (!fade || !fade->parent()) // one that has ended with its effect has no parent
        return;
    fade->setDirection(QAbstractAnimation::Forward);
    fade->setLoopCount(1);
    fade->start();
}

} // namespace

WyErrorWidget::WyErrorWidget(QWidget* parent) : QWidget(parent)
{
    offerAccessibility();
    setAttribute(Qt::WA_StyledBackground);
    createLabels();
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    InitAnimation();
}

WyErrorWidget::~WyErrorWidget()
{
    endRunningAnimations(this);
}

void WyErrorWidget::createLabels()
{
    auto* layout = new QHBoxLayout(this);
    layout->setObjectName(QStringLiteral("main_layout"));
    layout->setContentsMargins(kMarginPx, kMarginPx, kMarginPx, kMarginPx);
    layout->setSpacing(kSpacingPx);

    auto* icon = new QLabel(this);
    icon->setObjectName(QStringLiteral("label_icon"));
    icon->setFixedSize(kIconSizePx, kIconSizePx);
    OwnTexts::of(icon)->setName([] { return tr("Error"); });
    layout->addWidget(icon);
    icon->hide();

    m_errLabel = new QLabel(this);
    m_errLabel->setObjectName(QStringLiteral("err_widget_label"));
    m_errLabel->setWordWrap(true);
    m_errLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_errLabel->adjustSize();
    layout->addWidget(m_errLabel);
}

void WyErrorWidget::SetErrText(const QString& text)
{
    if (!m_errLabel)
        return;
    m_errLabel->setText(text);
    AdjustLabel();
}

void WyErrorWidget::SetWidgetMaxWidth(int width)
{
    m_maxWidth = width;
    if (m_errLabel)
        m_errLabel->setMaximumWidth(widgetWidth(width));
}

void WyErrorWidget::SetWidgetFixedWidth(int width)
{
    if (!m_errLabel)
        return;
    m_errLabel->setAlignment(Qt::AlignCenter);
    m_errLabel->setFixedWidth(widgetWidth(width));
}

void WyErrorWidget::SetErrLabelWrap(bool wrap)
{
    if (m_errLabel)
        m_errLabel->setWordWrap(wrap);
}

void WyErrorWidget::ShowAnimation(bool animate)
{
    const QPointer<WyErrorWidget> alive(this);
    show();
    if (!alive)
        return; // a handler of the host has deleted the widget
    stopIfActive(m_timer);
    if (!animate)
        return;
    startOver(m_showAnimation);
    if (!alive)
        return; // likewise a slot of the fade
    if (!m_timer)
        m_timer = createSingleShot(this, SLOT(hide()));
    m_timer->start(kHideAfterMs);
}

void WyErrorWidget::InitAnimation()
{
    QGraphicsOpacityEffect* effect = installOpacityEffect(this, 1.0);
    m_showAnimation = createFadeGroup(this, createOpacityFade(effect, kFadeInMs, 0, 1));
    QAbstractAnimation* const animations[] = {m_showAnimation, createGrowing(this), createFalling(this),
                                              createOpacityFade(effect, kFadeOutMs, 1, 0)};
    for (QAbstractAnimation* animation : animations) {
        animation->setParent(this);
        // Whoever replaces the effect ends the animations with it.
        connect(effect, &QObject::destroyed, animation, [animation] { endLater(animation); });
    }
}

void WyErrorWidget::AdjustLabel()
{
    if (m_maxWidth <= 0 || !m_errLabel)
        return;
    m_errLabel->ensurePolished();
    const QFontMetrics metrics = m_errLabel->fontMetrics();
    const int height = lineHeight(metrics);
    const QRect line(0, 0, m_maxWidth, height);
    const int lines = metrics.boundingRect(line, Qt::TextWordWrap, m_errLabel->text()).height() / height;
    m_errLabel->setWordWrap(lines >= 2);
    if (lines >= 2) {
        m_errLabel->setFixedWidth(widgetWidth(m_maxWidth));
    } else {
        m_errLabel->setMinimumWidth(0);
        m_errLabel->setMaximumWidth(widgetWidth(m_maxWidth));
    }
}

} // namespace WyWidgets

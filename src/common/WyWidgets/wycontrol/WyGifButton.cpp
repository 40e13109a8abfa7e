#include "WyWidgets/wycontrol/WyGifButton.h"

#include "WyWidgets/internal/text/Markup.h"
#include "WyWidgets/internal/widgets/OwnTexts.h"
#include "WyWidgets/wycontrol/WyWaitingSpinnerWidget.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyleOptionButton>

namespace WyWidgets {

namespace {

constexpr int kSpacingPx = 10;
constexpr double kSpinnerRoundnessPercent = 70.0;
constexpr double kSpinnerTrailOpacityPercent = 15.0;
constexpr double kSpinnerTrailFadePercent = 70.0;
constexpr double kSpinnerTurnsPerSecond = 1.0;
constexpr int kSpinnerLines = 8;
constexpr int kSpinnerLineLengthPx = 4;
constexpr int kSpinnerLineWidthPx = 2;
constexpr int kSpinnerInnerRadiusPx = 4;
constexpr QColor kSpinnerColor(255, 255, 255);

} // namespace

WyGifButton::WyGifButton(QWidget* parent) : QPushButton(parent)
{
    InitView();
}

void WyGifButton::SetButtonText(const QString& text, const QString& loadingText)
{
    m_text = text;
    m_loadingText = loadingText;
    setText(m_text);
}

void WyGifButton::StartAnimation()
{
    const QPointer<WyGifButton> alive(this); // handlers of the host may delete it or stop it again
    const QString busyText = m_loadingText.isEmpty() ? m_text : m_loadingText;
    m_isBusy = true;
    setText(QString());
    // Without a text a busy button would have no name for assistive tools.
    QString name = m_loadingText.isEmpty() ? withoutMnemonic(m_text) : withoutMarkup(m_loadingText);
    OwnTexts::of(this)->offerName([name] { return name; });
    setEnabled(false);
    if (alive && m_isBusy && m_textLabel) {
        m_textLabel->setText(busyText);
        m_textLabel->show();
    }
    if (alive && m_isBusy && m_spinner)
        m_spinner->start();
}

void WyGifButton::StopAnimation()
{
    const QPointer<WyGifButton> alive(this);
    m_isBusy = false;
    setEnabled(true);
    if (alive && !m_isBusy && m_textLabel)
        m_textLabel->hide();
    if (alive && !m_isBusy && m_spinner)
        m_spinner->stop();
    if (!alive || m_isBusy) // a handler has started it again
        return;
    OwnTexts::of(this)->offerName([] { return QString(); });
    setText(m_text);
}

void WyGifButton::InitView()
{
    if (layout())
        return;
    auto* row = new QHBoxLayout(this);
    row->setSpacing(kSpacingPx);
    row->setContentsMargins(0, 0, 0, 0);
    if (!m_spinner)
        m_spinner = createSpinner();
    if (!m_textLabel)
        m_textLabel = createTextLabel();
    row->addStretch();
    row->addWidget(m_textLabel);
    row->addWidget(m_spinner);
    row->addStretch();
}

QSize WyGifButton::sizeHint() const
{
    if (!m_textLabel || m_textLabel->isHidden() || !layout())
        return QPushButton::sizeHint();
    QStyleOptionButton option;
    initStyleOption(&option);
    const QSize restingText = option.fontMetrics.size(Qt::TextShowMnemonic, m_text);
    const QSize contents = layout()->sizeHint().expandedTo(restingText);
    return style()->sizeFromContents(QStyle::CT_PushButton, &option, contents, this);
}

WyWaitingSpinnerWidget* WyGifButton::createSpinner()
{
    auto* spinner = new WyWaitingSpinnerWidget(this, false, true);
    spinner->setRoundness(kSpinnerRoundnessPercent);
    spinner->setMinimumTrailOpacity(kSpinnerTrailOpacityPercent);
    spinner->setTrailFadePercentage(kSpinnerTrailFadePercent);
    spinner->setNumberOfLines(kSpinnerLines);
    spinner->setLineLength(kSpinnerLineLengthPx);
    spinner->setLineWidth(kSpinnerLineWidthPx);
    spinner->setInnerRadius(kSpinnerInnerRadiusPx);
    spinner->setRevolutionsPerSecond(kSpinnerTurnsPerSecond);
    spinner->setColor(kSpinnerColor);
    return spinner;
}

QLabel* WyGifButton::createTextLabel()
{
    auto* label = new QLabel(this);
    label->setObjectName(QStringLiteral("label_text"));
    label->hide();
    return label;
}

} // namespace WyWidgets

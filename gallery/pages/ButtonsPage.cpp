#include "pages/ButtonsPage.h"

#include "KnobPanel.h"
#include "Snippet.h"

#include <WyWidgets/wycontrol/WyAnimationButton.h>
#include <WyWidgets/wycontrol/WyHoverButton.h>
#include <WyWidgets/wycontrol/WyImageButton.h>
#include <WyWidgets/wycontrol/WyShadowButton.h>

#include <QHBoxLayout>
#include <QLabel>

using WyWidgets::WyAnimationButton;
using WyWidgets::WyHoverButton;
using WyWidgets::WyImageButton;
using WyWidgets::WyShadowButton;

namespace {

constexpr int kCountdownSeconds = 30;
constexpr QMargins kShadowRoom(16, 12, 16, 24); // in px, or the stage would cut the shadow off

} // namespace

ButtonsPage::ButtonsPage(QWidget* parent)
    : GalleryPage(tr("Buttons"),
                  tr("Push buttons with one more skill each. They take the style of every other push button "
                     "of the application."),
                  parent),
      m_countdown(new WyAnimationButton),
      m_dots(new WyAnimationButton),
      m_hover(new WyHoverButton),
      m_image(new WyImageButton(tr("Download"))),
      m_shadow(new WyShadowButton)
{
    addCountdown();
    addDots();
    addHoverButton();
    addImageButton();
    addShadowButton();
}

void ButtonsPage::prepareForPicture()
{
    m_countdown->StartAnimation();
    m_dots->StartAnimation();
}

void ButtonsPage::endPicture()
{
    m_countdown->StopAnimation();
    m_dots->StopAnimation();
}

void ButtonsPage::addCountdown()
{
    m_countdown->SetAnimationSecond(tr("Send the code again"), kCountdownSeconds);
    m_countdown->setMinimumWidth(180);
    connect(m_countdown, &QPushButton::clicked, m_countdown, &WyAnimationButton::StartAnimation);
    auto* knobs = new KnobPanel;
    knobs->addInt(tr("Seconds"), 1, 600, kCountdownSeconds, [this](int seconds) {
        m_countdown->SetAnimationSecond(tr("Send the code again"), seconds);
    });
    knobs->addButton(tr("Stop"), [this] { m_countdown->StopAnimation(); });
    addExample(tr("WyAnimationButton: a countdown"), atOwnSize(m_countdown), knobs,
               snippet(QStringLiteral("WyAnimationButton")));
}

void ButtonsPage::addDots()
{
    m_dots->SetAnimationText(tr("Check for updates"), tr("Checking"));
    m_dots->setMinimumWidth(180);
    connect(m_dots, &QPushButton::clicked, m_dots, &WyAnimationButton::StartAnimation);
    auto* knobs = new KnobPanel;
    knobs->addText(tr("Busy text"), tr("Checking"),
                   [this](const QString& text) { m_dots->SetAnimationText(tr("Check for updates"), text); });
    knobs->addButton(tr("Stop"), [this] { m_dots->StopAnimation(); });
    addExample(tr("WyAnimationButton: growing dots"), atOwnSize(m_dots), knobs,
               snippet(QStringLiteral("WyAnimationButton-more")));
}

void ButtonsPage::addHoverButton()
{
    m_hover->setText(tr("Empty the bin"));
    auto* hint = new QLabel(tr("Point at the button."));
    connect(m_hover, &WyHoverButton::SignalEnterEvent, hint,
            [hint] { hint->setText(tr("Deletes 12 files for good.")); });
    connect(m_hover, &WyHoverButton::SignalLeaveEvent, hint,
            [hint] { hint->setText(tr("Point at the button.")); });
    auto* knobs = new KnobPanel;
    knobs->addCheck(tr("Enabled"), true, [this](bool on) { m_hover->setEnabled(on); });
    addExample(tr("WyHoverButton"), atOwnSize(m_hover, hint), knobs,
               snippet(QStringLiteral("WyHoverButton")));
}

void ButtonsPage::addImageButton()
{
    m_image->setIconNormal(QStringLiteral(":/gallery/download.png"));
    m_image->setIconDisable(QStringLiteral(":/gallery/download-disabled.png"));
    auto* knobs = new KnobPanel;
    knobs->addCheck(tr("Enabled"), true, [this](bool on) { m_image->setEnabled(on); });
    knobs->addText(tr("Text"), m_image->text(), [this](const QString& text) { m_image->setText(text); });
    addExample(tr("WyImageButton"), atOwnSize(m_image), knobs, snippet(QStringLiteral("WyImageButton")));
}

void ButtonsPage::addShadowButton()
{
    m_shadow->SetButtonObjectName(QStringLiteral("gallery_shadow_button"));
    m_shadow->SetButtonText(tr("Compose"));
    m_shadow->SetButtonMinimumWidth(140);
    m_shadow->SetButtonFixedHeight(40);
    auto* count = new QLabel(tr("Not clicked yet."));
    connect(m_shadow, &WyShadowButton::SignalButtonClicked, count,
            [count, clicks = 0]() mutable { count->setText(tr("Clicked %n time(s).", nullptr, ++clicks)); });
    auto* knobs = new KnobPanel;
    knobs->addColor(tr("Shadow"), QColor(0, 0, 0, 140),
                    [this](const QColor& color) { m_shadow->setShadowColor(color); });
    knobs->addInt(tr("Minimum width"), 0, 400, 140,
                  [this](int width) { m_shadow->SetButtonMinimumWidth(width); });
    knobs->addInt(tr("Height"), 24, 80, 40, [this](int height) { m_shadow->SetButtonFixedHeight(height); });
    knobs->addButton(tr("Click it from here"), [this] { m_shadow->ButtonAnimateClick(100); });
    QWidget* stage = atOwnSize(m_shadow, count);
    stage->layout()->setContentsMargins(kShadowRoom);
    addExample(tr("WyShadowButton"), stage, knobs, snippet(QStringLiteral("WyShadowButton")));
}

#include "pages/BusyPage.h"

#include "FlushLayout.h"
#include "KnobPanel.h"
#include "Snippet.h"

#include <WyWidgets/wycontrol/WyWaitingBar.h>

#include <QCheckBox>
#include <QFormLayout>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

using WyWidgets::WyWaitingBar;
using WyWidgets::WyWaitingSpinnerWidget;

namespace {

constexpr QColor kSpinnerColor(61, 139, 253); // stands out on the light and on the dark theme
constexpr int kModalMs = 3000;

void copySettings(const WyWaitingSpinnerWidget& from, WyWaitingSpinnerWidget* to)
{
    to->setColor(from.color());
    to->setRoundness(from.roundness());
    to->setMinimumTrailOpacity(from.minimumTrailOpacity());
    to->setTrailFadePercentage(from.trailFadePercentage());
    to->setRevolutionsPerSecond(from.revolutionsPersSecond());
    to->setNumberOfLines(from.numberOfLines());
    to->setLineLength(from.lineLength());
    to->setLineWidth(from.lineWidth());
    to->setInnerRadius(from.innerRadius());
}

} // namespace

BusyPage::BusyPage(QWidget* parent)
    : GalleryPage(
          tr("Busy"),
          tr("A spinner for work over a part of a window, a bar for work that runs beside it. Both are "
             "painted, and neither costs anything while it is hidden or its window is minimised."),
          parent)
{
    QWidget* transfer = createTransfer();
    addExample(tr("Waiting bar"), transfer, createBarKnobs(), snippet(QStringLiteral("WyWaitingBar")));
    QWidget* form = createForm();
    addExample(tr("Waiting spinner"), form, createSpinnerKnobs(),
               snippet(QStringLiteral("WyWaitingSpinnerWidget")));
}

void BusyPage::prepareForPicture()
{
    m_spinner->start();
    m_bar->start();
}

QWidget* BusyPage::createForm()
{
    m_form = new QFrame;
    m_form->setObjectName(QStringLiteral("gallery_busy_form"));
    auto* form = new QFormLayout(m_form);
    form->setContentsMargins(24, 24, 24, 24);
    form->setVerticalSpacing(12);
    form->addRow(tr("Name"), new QLineEdit(tr("Ada Lovelace")));
    form->addRow(tr("Street"), new QLineEdit(tr("12 St James's Square")));
    form->addRow(tr("City"), new QLineEdit(tr("London")));
    form->addRow(QString(), new QCheckBox(tr("Send me the catalogue")));
    m_spinner = new WyWaitingSpinnerWidget(m_form);
    m_spinner->setColor(kSpinnerColor);
    m_spinner->start();

    auto* stage = new QWidget;
    auto* column = flushLayout<QVBoxLayout>(stage);
    column->addWidget(m_form);
    column->addStretch(1);
    return stage;
}

KnobPanel* BusyPage::createSpinnerKnobs()
{
    auto* knobs = new KnobPanel;
    knobs->addCheck(tr("Spinning"), true, [this](bool on) { on ? m_spinner->start() : m_spinner->stop(); });
    knobs->addCheck(tr("Disable the form"), false, [this](bool on) { replaceSpinner(on); });
    addLookKnobs(knobs);
    addShapeKnobs(knobs);
    knobs->addButton(tr("Modal for three seconds"), [this] { showModalSpinner(); });
    return knobs;
}

void BusyPage::addLookKnobs(KnobPanel* knobs)
{
    const WyWaitingSpinnerWidget& spinner = *m_spinner;
    knobs->addColor(tr("Colour"), spinner.color(),
                    [this](const QColor& color) { m_spinner->setColor(color); });
    knobs->addReal(tr("Roundness (%)"), 0, 100, spinner.roundness(),
                   [this](double percent) { m_spinner->setRoundness(percent); });
    knobs->addReal(tr("Trail fade (%)"), 0, 100, spinner.trailFadePercentage(),
                   [this](double percent) { m_spinner->setTrailFadePercentage(percent); });
    knobs->addReal(tr("Trail end (%)"), 0, 100, spinner.minimumTrailOpacity(),
                   [this](double percent) { m_spinner->setMinimumTrailOpacity(percent); });
    knobs->addReal(tr("Turns a second"), 0, 5, spinner.revolutionsPersSecond(),
                   [this](double rate) { m_spinner->setRevolutionsPerSecond(rate); });
}

void BusyPage::addShapeKnobs(KnobPanel* knobs)
{
    const WyWaitingSpinnerWidget& spinner = *m_spinner;
    knobs->addInt(tr("Lines"), 0, 60, spinner.numberOfLines(),
                  [this](int lines) { m_spinner->setNumberOfLines(lines); });
    knobs->addInt(tr("Line length"), 0, 60, spinner.lineLength(),
                  [this](int length) { m_spinner->setLineLength(length); });
    knobs->addInt(tr("Line width"), 0, 30, spinner.lineWidth(),
                  [this](int width) { m_spinner->setLineWidth(width); });
    knobs->addInt(tr("Inner radius"), 0, 60, spinner.innerRadius(),
                  [this](int radius) { m_spinner->setInnerRadius(radius); });
}

void BusyPage::replaceSpinner(bool disablesForm)
{
    auto* next = new WyWaitingSpinnerWidget(m_form, true, disablesForm);
    copySettings(*m_spinner, next);
    const bool spins = m_spinner->isSpinning();
    delete m_spinner;
    m_spinner = next;
    if (spins)
        m_spinner->start();
}

void BusyPage::showModalSpinner()
{
    auto* modal = new WyWaitingSpinnerWidget(Qt::WindowModal, this, false);
    copySettings(*m_spinner, modal);
    modal->move(mapToGlobal(rect().center()) - modal->rect().center());
    modal->start();
    QTimer::singleShot(kModalMs, modal, &QObject::deleteLater);
}

QWidget* BusyPage::createTransfer()
{
    auto* stage = new QWidget;
    auto* column = flushLayout<QVBoxLayout>(stage);
    auto* caption = new QLabel(tr("Looking for printers\u2026"));
    m_bar = new WyWaitingBar;
    m_bar->start();
    column->addWidget(caption);
    column->addWidget(m_bar);
    column->addStretch(1);
    return stage;
}

KnobPanel* BusyPage::createBarKnobs()
{
    auto* knobs = new KnobPanel;
    knobs->addCheck(tr("Running"), true, [this](bool on) { on ? m_bar->start() : m_bar->stop(); });
    knobs->addInt(tr("Height"), 2, 60, m_bar->sizeHint().height(),
                  [this](int height) { m_bar->setFixedHeight(height); });
    knobs->addInt(tr("Largest width"), 24, 1200, 1200, [this](int width) { m_bar->setMaximumWidth(width); });
    return knobs;
}

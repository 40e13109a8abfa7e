#include "pages/BusyImagesPage.h"

#include "KnobPanel.h"
#include "Snippet.h"

#include <WyWidgets/wycontrol/WyGifButton.h>
#include <WyWidgets/wycontrol/WyGifLabel.h>
#include <WyWidgets/wycontrol/WyLoadBox.h>

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QTimer>

using WyWidgets::WyGifButton;
using WyWidgets::WyGifLabel;
using WyWidgets::WyLoadBox;

namespace {

constexpr int kUploadMs = 4000;
constexpr int kFrames = 12;
constexpr int kPanelHeightPx = 150;
const QLatin1String kFramesFolder(":/gallery/busy/");

} // namespace

BusyImagesPage::BusyImagesPage(QWidget* parent)
    : GalleryPage(
          tr("Busy images"),
          tr("Image sequences that play without a movie decoder, a box that lays one over a part of a "
             "window, and a button that shows its own work."),
          parent),
      m_button(new WyGifButton),
      m_label(new WyGifLabel),
      m_panel(new QFrame),
      m_box(new WyLoadBox(m_panel))
{
    addGifButton();
    addGifLabel();
    addLoadBox();
}

void BusyImagesPage::prepareForPicture()
{
    m_button->StartAnimation();
    startLoad(true);
}

void BusyImagesPage::endPicture()
{
    m_button->StopAnimation();
    stopLoad();
}

void BusyImagesPage::addGifButton()
{
    m_button->SetButtonText(tr("Upload"), tr("Uploading"));
    connect(m_button, &QPushButton::clicked, this, [this] {
        m_button->StartAnimation();
        QTimer::singleShot(kUploadMs, m_button, &WyGifButton::StopAnimation);
    });
    auto* knobs = new KnobPanel;
    knobs->addText(tr("Busy text"), tr("Uploading"),
                   [this](const QString& text) { m_button->SetButtonText(tr("Upload"), text); });
    knobs->addButton(tr("Start"), [this] { m_button->StartAnimation(); });
    knobs->addButton(tr("Stop"), [this] { m_button->StopAnimation(); });
    addExample(tr("WyGifButton"), atOwnSize(m_button), knobs, snippet(QStringLiteral("WyGifButton")));
}

void BusyImagesPage::addGifLabel()
{
    m_label->setFixedSize(32, 32);
    m_label->setAccessibleName(tr("Busy"));
    m_label->SetGif(kFramesFolder, kFrames);
    m_label->start();
    auto* knobs = new KnobPanel;
    knobs->addCheck(tr("Playing"), true, [this](bool on) { on ? m_label->start() : m_label->stop(); });
    knobs->addInt(tr("Frames"), 1, kFrames, kFrames,
                  [this](int frames) { m_label->SetGif(kFramesFolder, frames); });
    knobs->addInt(tr("Size"), 8, 128, 32, [this](int side) { m_label->setFixedSize(side, side); });
    addExample(tr("WyGifLabel"), atOwnSize(m_label), knobs, snippet(QStringLiteral("WyGifLabel")));
}

void BusyImagesPage::addLoadBox()
{
    m_panel->setObjectName(QStringLiteral("gallery_busy_form"));
    m_panel->setFixedHeight(kPanelHeightPx);
    auto* column = new QVBoxLayout(m_panel);
    column->setContentsMargins(24, 20, 24, 20);
    for (const QString& line :
         {tr("Inbox: 12 messages"), tr("Drafts: 3 messages"), tr("Archive: 2,816 messages")})
        column->addWidget(new QLabel(line));
    column->addStretch(1);
    auto* gif = m_box->findChild<WyGifLabel*>();
    gif->SetGif(kFramesFolder, kFrames);
    gif->setAccessibleName(tr("Loading"));
    m_box->hide();

    auto* knobs = new KnobPanel;
    knobs->addButton(tr("Load"), [this] { startLoad(false); });
    knobs->addButton(tr("Load behind a mask"), [this] { startLoad(true); });
    knobs->addButton(tr("Stop"), [this] { stopLoad(); });
    addExample(tr("WyLoadBox"), m_panel, knobs, snippet(QStringLiteral("WyLoadBox")));
}

void BusyImagesPage::startLoad(bool mask)
{
    // The masked look stays with the name that selects it.
    m_box->setObjectName(QString());
    m_box->show();
    m_box->raise();
    m_box->AdjustParentSize();
    m_box->StartLoad(mask);
}

void BusyImagesPage::stopLoad()
{
    m_box->StopLoad();
    m_box->hide();
}

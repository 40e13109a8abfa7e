#include "pages/LabelsPage.h"

#include "FlushLayout.h"
#include "KnobPanel.h"
#include "Snippet.h"

#include <WyWidgets/wycontrol/WyCheckBox.h>
#include <WyWidgets/wycontrol/WyDotButton.h>
#include <WyWidgets/wycontrol/WyDotCheckBox.h>
#include <WyWidgets/wycontrol/WyDotLabel.h>
#include <WyWidgets/wycontrol/WyElidedLabel.h>
#include <WyWidgets/wycontrol/WyLabel.h>
#include <WyWidgets/wycontrol/WyMenu.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using WyWidgets::WyCheckBox;
using WyWidgets::WyDotButton;
using WyWidgets::WyDotCheckBox;
using WyWidgets::WyDotLabel;
using WyWidgets::WyElidedLabel;
using WyWidgets::WyLabel;
using WyWidgets::WyMenu;

namespace {

constexpr int kElidedWidthPx = 220;
constexpr int kElidedMarginPx = 4;
constexpr int kCheckWidthPx = 240;
constexpr int kMenuRoomPx = 24;       // a theme's menu is larger than an unstyled one
constexpr int kDotCheckWidthPx = 136; // room for the dot beside the text, whichever way it runs
constexpr int kDotLabelMarginPx = 10; // keeps the text clear of the dot

} // namespace

LabelsPage::LabelsPage(QWidget* parent)
    : GalleryPage(tr("Labels and checks"),
                  tr("Small widgets that add one behaviour to a plain one: a label that is clicked, a text "
                     "that is cut where room ends, a dot for what is new, a check box that wraps."),
                  parent),
      m_label(new WyLabel),
      m_elided(new WyElidedLabel),
      m_dotButton(new WyDotButton),
      m_dotCheck(new WyDotCheckBox),
      m_dotLabel(new WyDotLabel),
      m_check(new WyCheckBox(tr("Send me a mail when somebody answers, and once a week what I have missed"))),
      m_menuButton(new QPushButton(tr("Account"))),
      m_menu(new WyMenu(m_menuButton))
{
    addLabel();
    addMenu();
    addDots();
    addCheckBox();
    addElidedLabel();
}

void LabelsPage::prepareForPicture()
{
    m_check->setChecked(true);
    showMenu();
}

void LabelsPage::endPicture()
{
    m_menu->hide();
}

void LabelsPage::addLabel()
{
    m_label->setText(tr("What is new in this version?"));
    m_label->setCursor(Qt::PointingHandCursor);
    auto* count = new QLabel(tr("Not clicked yet."));
    connect(m_label, &WyLabel::clicked, count,
            [count, clicks = 0]() mutable { count->setText(tr("Clicked %n time(s).", nullptr, ++clicks)); });
    auto* knobs = new KnobPanel;
    knobs->addText(tr("Text"), m_label->text(), [this](const QString& text) { m_label->setText(text); });
    knobs->addCheck(tr("Enabled"), true, [this](bool on) { m_label->setEnabled(on); });
    addExample(tr("WyLabel"), atOwnSize(m_label, count), knobs, snippet(QStringLiteral("WyLabel")));
}

void LabelsPage::addMenu()
{
    m_menu->addAction(tr("Profile"));
    m_menu->addAction(tr("Settings"));
    QAction* online = m_menu->addAction(tr("Show me as online"));
    online->setCheckable(true);
    online->setChecked(true);
    m_menu->addSeparator();
    QAction* signOut = m_menu->addAction(tr("Sign out"));
    connect(m_menuButton, &QPushButton::clicked, this, &LabelsPage::showMenu);
    auto* knobs = new KnobPanel;
    knobs->addCheck(tr("May sign out"), true, [signOut](bool on) { signOut->setEnabled(on); });
    QLabel* chosen = knobs->addReadout(tr("Chosen"), tr("nothing yet"));
    connect(m_menu, &QMenu::triggered, chosen,
            [chosen](const QAction* action) { chosen->setText(action->text()); });
    QWidget* stage = atOwnSize(m_menuButton);
    stage->setMinimumHeight(m_menuButton->sizeHint().height() + m_menu->sizeHint().height() + kMenuRoomPx);
    addExample(tr("WyMenu"), stage, knobs, snippet(QStringLiteral("WyMenu")));
}

void LabelsPage::addDots()
{
    m_dotButton->setText(tr("Messages"));
    m_dotCheck->setText(tr("Beta features"));
    m_dotCheck->setMinimumWidth(kDotCheckWidthPx);
    m_dotLabel->setText(tr("Inbox"));
    m_dotLabel->setMargin(kDotLabelMarginPx);
    auto* others = new QWidget;
    auto* row = flushLayout<QHBoxLayout>(others);
    row->setSpacing(24);
    row->addWidget(m_dotCheck);
    row->addWidget(m_dotLabel);
    auto* knobs = new KnobPanel;
    knobs->addCheck(tr("Something is new"), true, [this](bool on) {
        m_dotButton->SetDotVisible(on);
        m_dotCheck->SetDotVisible(on);
        m_dotLabel->SetDotVisible(on);
    });
    knobs->addText(tr("Text"), m_dotButton->text(),
                   [this](const QString& text) { m_dotButton->setText(text); });
    addExample(tr("WyDotButton, WyDotCheckBox, WyDotLabel"), atOwnSize(m_dotButton, others), knobs,
               snippet(QStringLiteral("WyDotButton")));
}

void LabelsPage::addCheckBox()
{
    m_check->setFixedWidth(kCheckWidthPx);
    auto* knobs = new KnobPanel;
    knobs->addText(tr("Text"), m_check->text(), [this](const QString& text) {
        m_check->setText(text);
        // A text is wrapped when the width changes: come back to the width with the new text.
        const int width = m_check->width();
        m_check->setFixedWidth(width + 1);
        m_check->setFixedWidth(width);
    });
    knobs->addInt(tr("Width"), 20, 600, kCheckWidthPx, [this](int width) { m_check->setFixedWidth(width); });
    knobs->addCheck(tr("Enabled"), true, [this](bool on) { m_check->setEnabled(on); });
    addExample(tr("WyCheckBox"), atOwnSize(m_check), knobs, snippet(QStringLiteral("WyCheckBox")));
}

void LabelsPage::addElidedLabel()
{
    const QString path = tr("/home/ada/Documents/Letters/2021/To the editor of the Mathematical Gazette.txt");
    m_elided->setText(path);
    m_elided->setToolTip(path);
    m_elided->setFixedWidth(kElidedWidthPx);
    m_elided->setMargin(kElidedMarginPx);
    m_elided->setObjectName(QStringLiteral("gallery_elided"));
    auto* knobs = new KnobPanel;
    knobs->addText(tr("Text"), path, [this](const QString& text) {
        m_elided->setText(text);
        m_elided->setToolTip(text);
    });
    knobs->addInt(tr("Width"), 1, 600, kElidedWidthPx, [this](int width) { m_elided->setFixedWidth(width); });
    knobs->addInt(tr("Margin"), 0, 40, kElidedMarginPx, [this](int margin) { m_elided->setMargin(margin); });
    knobs->addChoice(tr("Alignment"), {tr("Left"), tr("Centre"), tr("Right")}, 0, [this](int index) {
        constexpr Qt::Alignment kAlignments[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
        m_elided->setAlignment(kAlignments[index] | Qt::AlignVCenter);
    });
    addExample(tr("WyElidedLabel"), atOwnSize(m_elided), knobs, snippet(QStringLiteral("WyElidedLabel")));
}

void LabelsPage::showMenu()
{
    const int left = isRightToLeft() ? m_menuButton->width() - m_menu->sizeHint().width() : 0;
    m_menu->popup(m_menuButton->mapToGlobal(QPoint(left, m_menuButton->height())));
}

#include "pages/TipsPage.h"

#include "FlushLayout.h"
#include "KnobPanel.h"
#include "Snippet.h"

#include <WyWidgets/wycontrol/WyArrowWidget.h>
#include <WyWidgets/wycontrol/WyBubbleButton.h>
#include <WyWidgets/wycontrol/WyTipWidget.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using WyWidgets::WyArrowWidget;
using WyWidgets::WyBubbleButton;
using WyWidgets::WyBubbleWidget;
using WyWidgets::WyTipWidget;

namespace {

constexpr int kArrowStageHeightPx = 260;
constexpr int kTargetSizePx = 8;
constexpr int kBubbleGapPx = 4;

QStringList sides()
{
    return {TipsPage::tr("Left"), TipsPage::tr("Right"), TipsPage::tr("Top"), TipsPage::tr("Bottom")};
}

/// The point beside the widget that an arrow on the given side of its bubble should touch.
QPoint beside(const QWidget* widget, WyBubbleWidget::Derection arrowSide)
{
    const QRect rect(widget->mapToGlobal(QPoint()), widget->size());
    switch (arrowSide) {
    case WyBubbleWidget::Left:
        return QPoint(rect.right() + kBubbleGapPx, rect.center().y());
    case WyBubbleWidget::Right:
        return QPoint(rect.left() - kBubbleGapPx, rect.center().y());
    case WyBubbleWidget::Top:
        return QPoint(rect.center().x(), rect.bottom() + kBubbleGapPx);
    case WyBubbleWidget::Bottom:
        break;
    }
    return QPoint(rect.center().x(), rect.top() - kBubbleGapPx);
}

QWidget* createBubbleContent()
{
    auto* content = new QWidget;
    content->setObjectName(QStringLiteral("gallery_bubble_content"));
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(16, 14, 16, 14);
    auto* title = new QLabel(TipsPage::tr("Autosave is on"));
    title->setObjectName(QStringLiteral("gallery_bubble_title"));
    layout->addWidget(title);
    layout->addWidget(new QLabel(TipsPage::tr("Every change is kept as you type.\n"
                                              "Versions of the last month stay here.")));
    return content;
}

} // namespace

TipsPage::TipsPage(QWidget* parent)
    : GalleryPage(tr("Tips and bubbles"),
                  tr("Panels that explain something where it is. Each is moved by the tip of its arrow, so "
                     "that it points exactly where you say."),
                  parent),
      m_tipText(tr("The file was moved to the archive.")),
      m_leftLink(tr("Undo")),
      m_rightLink(tr("Show the archive"))
{
    QWidget* arrowStage = createArrowStage();
    addExample(tr("Arrow widget"), arrowStage, createArrowKnobs(), snippet(QStringLiteral("WyArrowWidget")));
    QWidget* bubbleStage = createBubbleStage();
    addExample(tr("Bubble"), bubbleStage, createBubbleKnobs(), snippet(QStringLiteral("WyBubbleWidget")));
    addExample(tr("Bubble button"), createBubbleButtons(), nullptr,
               snippet(QStringLiteral("WyBubbleButton")));
    QWidget* tipStage = createTipStage();
    addExample(tr("Tip widget"), tipStage, createTipKnobs(), snippet(QStringLiteral("WyTipWidget")));
}

void TipsPage::prepareForPicture()
{
    showTip();
    showBubble();
}

void TipsPage::endPicture()
{
    m_bubble->hide();
}

bool TipsPage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_arrowStage && event->type() == QEvent::Resize)
        placeArrow();
    return GalleryPage::eventFilter(watched, event);
}

void TipsPage::showEvent(QShowEvent* event)
{
    GalleryPage::showEvent(event);
    // Not before: the bubble belongs to the window that the button is in.
    m_bubbleButton->SetBubbleTip(tr("Sends the report to everyone in the list."));
}

void TipsPage::hideEvent(QHideEvent* event)
{
    GalleryPage::hideEvent(event);
    m_bubble->hide(); // a window of its own
}

QWidget* TipsPage::createArrowStage()
{
    m_arrowStage = new QWidget;
    m_arrowStage->setMinimumHeight(kArrowStageHeightPx);
    m_arrowStage->installEventFilter(this);
    m_target = new QWidget(m_arrowStage);
    m_target->setObjectName(QStringLiteral("gallery_arrow_target"));
    m_target->setAttribute(Qt::WA_StyledBackground);
    m_target->resize(kTargetSizePx, kTargetSizePx);
    m_arrow = new WyArrowWidget(m_arrowStage);
    m_arrow->setText(tr("Drop files here. A click closes this panel."));
    return m_arrowStage;
}

KnobPanel* TipsPage::createArrowKnobs()
{
    auto* knobs = new KnobPanel;
    knobs->addText(tr("Text"), m_arrow->text(), [this](const QString& text) {
        m_arrow->setText(text);
        placeArrow();
    });
    knobs->addChoice(tr("Side"), sides(), 0, [this](int side) {
        m_arrow->setDerection(WyArrowWidget::Derection(side));
        placeArrow();
    });
    knobs->addInt(tr("Start"), 0, 200, 50, [this](int start) {
        m_arrow->setStartPos(start);
        placeArrow();
    });
    knobs->addInt(tr("Base"), 0, 60, m_arrowBase, [this](int width) {
        m_arrowBase = width;
        placeArrow();
    });
    knobs->addInt(tr("Depth"), 0, 60, m_arrowDepth, [this](int depth) {
        m_arrowDepth = depth;
        placeArrow();
    });
    knobs->addButton(tr("Show again"), [this] { m_arrow->show(); });
    return knobs;
}

void TipsPage::placeArrow()
{
    const QPoint centre = m_arrowStage->rect().center();
    m_target->move(centre - QPoint(kTargetSizePx, kTargetSizePx) / 2);
    m_arrow->setTriangleInfo(m_arrowBase, m_arrowDepth);
    m_arrow->myMove(centre.x(), centre.y());
    m_arrow->update(); // side and triangle show only with the next painting
}

QWidget* TipsPage::createTipStage()
{
    m_tipStage = new QWidget;
    auto* layout = flushLayout<QVBoxLayout>(m_tipStage);
    layout->addStretch(1);
    return m_tipStage;
}

KnobPanel* TipsPage::createTipKnobs()
{
    auto* knobs = new KnobPanel;
    knobs->addText(tr("Text"), m_tipText, [this](const QString& text) { m_tipText = text; });
    knobs->addText(tr("Left link"), m_leftLink, [this](const QString& text) { m_leftLink = text; });
    knobs->addText(tr("Right link"), m_rightLink, [this](const QString& text) { m_rightLink = text; });
    knobs->addButton(tr("Show a tip"), [this] { showTip(); });
    m_tipReadout = knobs->addReadout(tr("Clicked"), tr("nothing yet"));
    return knobs;
}

void TipsPage::showTip()
{
    delete m_tip;
    m_tip = new WyTipWidget;
    m_tip->SetText(m_tipText);
    m_tip->SetLinkText(m_leftLink, m_rightLink);
    connect(m_tip, &WyTipWidget::SignalClickedLeftLink, this, [this] { m_tipReadout->setText(m_leftLink); });
    connect(m_tip, &WyTipWidget::SignalClickedRightLink, this,
            [this] { m_tipReadout->setText(m_rightLink); });
    static_cast<QVBoxLayout*>(m_tipStage->layout())->insertWidget(0, m_tip, 0, Qt::AlignLeft);
    m_tip->StartShowAnimation();
}

QWidget* TipsPage::createBubbleStage()
{
    auto* stage = new QWidget;
    auto* layout = flushLayout<QVBoxLayout>(stage);
    m_anchor = new QPushButton(tr("Show the bubble"));
    connect(m_anchor, &QPushButton::clicked, this, [this] {
        if (m_bubble->isVisible())
            m_bubble->hide();
        else
            showBubble();
    });
    layout->addWidget(m_anchor, 0, Qt::AlignLeft);
    layout->addStretch(1);
    createBubble(true);
    return stage;
}

KnobPanel* TipsPage::createBubbleKnobs()
{
    auto* knobs = new KnobPanel;
    knobs->addCheck(tr("Shadow"), true, [this](bool shadow) {
        createBubble(shadow);
        showBubble();
    });
    m_bubble->ensurePolished(); // the first colours are the theme's
    knobs->addColor(tr("Colour"), m_bubble->bubbleColor(),
                    [this](const QColor& color) { m_bubble->setBubbleColor(color); });
    knobs->addColor(tr("Shadow colour"), m_bubble->shadowColor(),
                    [this](const QColor& color) { m_bubble->setShadowColor(color); });
    knobs->addChoice(tr("Side"), sides(), 0, [this](int side) {
        m_bubbleSide = WyBubbleWidget::Derection(side);
        showBubble();
    });
    knobs->addInt(tr("Start"), 0, 200, m_bubbleStart, [this](int start) {
        m_bubbleStart = start;
        showBubble();
    });
    knobs->addInt(tr("Base"), 0, 60, m_bubbleBase, [this](int width) {
        m_bubbleBase = width;
        showBubble();
    });
    knobs->addInt(tr("Depth"), 0, 60, m_bubbleDepth, [this](int depth) {
        m_bubbleDepth = depth;
        showBubble();
    });
    return knobs;
}

void TipsPage::createBubble(bool shadow)
{
    delete m_bubble;
    m_bubble = new WyBubbleWidget(shadow, this);
    const QMargins margins = m_bubble->layout()->contentsMargins();
    m_bubble->SetContentWidget(createBubbleContent(), QPoint(margins.left(), margins.top()));
}

void TipsPage::showBubble()
{
    m_bubble->setDerection(m_bubbleSide);
    m_bubble->setTriangleInfo(m_bubbleBase, m_bubbleDepth);
    m_bubble->setStartPos(m_bubbleStart);
    const QPoint target = beside(m_anchor, m_bubbleSide);
    m_bubble->myMove(target.x(), target.y());
    m_bubble->show();
}

QWidget* TipsPage::createBubbleButtons()
{
    auto* stage = new QWidget;
    auto* layout = flushLayout<QVBoxLayout>(stage);
    auto* note =
        new QLabel(tr("Hover the button. The bubble takes the button's place in its parent for a place "
                      "on the screen: it comes up near the button if the parent fills the screen, and "
                      "in the screen's upper left corner otherwise."));
    note->setWordWrap(true);
    m_bubbleButton = new WyBubbleButton;
    m_bubbleButton->setText(tr("Send the report"));
    layout->addWidget(note);
    layout->addWidget(m_bubbleButton, 0, Qt::AlignLeft);
    layout->addStretch(1);
    return stage;
}

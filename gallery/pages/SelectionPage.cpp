#include "pages/SelectionPage.h"

#include "KnobPanel.h"
#include "Snippet.h"

#include <WyWidgets/frame/WyWidgetUtils.h>

#include <QFileDialog>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

using WyWidgets::WySelectFrame;
using WyWidgets::WyWidgetUtils;

namespace {

constexpr int kPictureWidthPx = 560;
constexpr QRect kFirstSelectionPx(140, 70, 260, 170);
constexpr QSize kRatios[] = {QSize(0, 0), QSize(1, 1), QSize(4, 3), QSize(16, 9)};

QPixmap dimmed(const QPixmap& picture)
{
    QPixmap result = picture;
    QPainter(&result).fillRect(result.rect(), QColor(0, 0, 0, 70));
    return result;
}

} // namespace

SelectionPage::SelectionPage(QWidget* parent)
    : GalleryPage(
          tr("Selection"),
          tr("A frame that is moved and resized with the mouse, over a picture of all screens. Drag an edge "
             "across the opposite one: the drag goes on."),
          parent),
      m_color(QStringLiteral("#07BE8B"))
{
    m_picture = new QLabel;
    m_picture->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    addExample(tr("Choose a region"), m_picture, createKnobs(), snippet(QStringLiteral("WySelectFrame")));
    grabScreens();
    createFrame(WySelectFrame::kType_Points);
}

void SelectionPage::prepareForPicture()
{
    grabScreens();
}

KnobPanel* SelectionPage::createKnobs()
{
    auto* knobs = new KnobPanel;
    knobs->addChoice(tr("Type"), {tr("Points"), tr("Corners"), tr("Close button")}, 0,
                     [this](int index) { createFrame(static_cast<WySelectFrame::FrameType>(index)); });
    knobs->addChoice(tr("Ratio"), {tr("Free"), tr("1 : 1"), tr("4 : 3"), tr("16 : 9")}, 0, [this](int index) {
        m_ratio = index;
        applyScale();
    });
    knobs->addColor(tr("Colour"), m_color, [this](const QColor& color) {
        m_color = color;
        if (m_frame)
            m_frame->SetFrameColor(color);
    });
    knobs->addCheck(tr("Enabled"), true, [this](bool enabled) {
        m_enabled = enabled;
        if (m_frame)
            m_frame->SetFrameEnabled(enabled);
    });
    knobs->addCheck(tr("Show the size in the frame"), true, [this](bool shows) {
        m_showsSize = shows;
        showSelection();
    });
    knobs->addCheck(tr("Move handle (corners only)"), true, [this](bool visible) {
        if (m_frame)
            m_frame->SetMoveHandleVisible(visible);
    });
    knobs->addButton(tr("Grab the screens again"), [this] { grabScreens(); });
    knobs->addButton(tr("Save the selection …"), [this] { saveSelection(); });
    m_readout = knobs->addReadout(tr("Selection"));
    return knobs;
}

void SelectionPage::grabScreens()
{
    m_grab = WyWidgetUtils::GrabAllScreenPixMap();
    const QPixmap picture = m_grab.isNull() ? QPixmap(kPictureWidthPx, kPictureWidthPx / 2) : m_grab;
    m_picture->setPixmap(dimmed(picture.scaledToWidth(kPictureWidthPx, Qt::SmoothTransformation)));
    m_picture->setFixedSize(m_picture->pixmap(Qt::ReturnByValue).size());
    showSelection();
}

void SelectionPage::createFrame(WySelectFrame::FrameType type)
{
    const QRect place = m_frame ? m_frame->geometry() : kFirstSelectionPx;
    delete m_frame;
    m_frame = new WySelectFrame(type, m_picture);
    m_frame->SetFrameColor(m_color);
    m_frame->SetFrameEnabled(m_enabled);
    m_frame->setGeometry(place);
    applyScale();
    connect(m_frame, &WySelectFrame::SignalWindowMoved, this, &SelectionPage::showSelection);
    connect(m_frame, &WySelectFrame::SignalClickedClose, m_frame, &QWidget::hide);
    m_frame->show();
    showSelection();
}

void SelectionPage::applyScale()
{
    if (m_frame)
        m_frame->SetFrameScale(kRatios[m_ratio], m_ratio > 0);
}

QRect SelectionPage::selectionInGrab() const
{
    const qreal scale = qreal(m_grab.width()) / kPictureWidthPx;
    return WyWidgetUtils::ScaledRect(m_frame->geometry(), scale);
}

void SelectionPage::showSelection()
{
    if (!m_frame)
        return;
    const QRect rect = selectionInGrab();
    const QString size = QStringLiteral("%1 \u00d7 %2").arg(rect.width()).arg(rect.height());
    m_frame->SetText(m_showsSize ? size : QString());
    m_readout->setText(QStringLiteral("%1 at (%2, %3)").arg(size).arg(rect.x()).arg(rect.y()));
}

void SelectionPage::saveSelection()
{
    const QString file = QFileDialog::getSaveFileName(
        this, tr("Save the selection"), QStringLiteral("selection.png"), tr("Pictures (*.png)"));
    if (!file.isEmpty())
        m_grab.copy(selectionInGrab()).save(file);
}

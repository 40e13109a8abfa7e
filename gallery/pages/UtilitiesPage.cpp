#include "pages/UtilitiesPage.h"

#include "FlushLayout.h"
#include "KnobPanel.h"
#include "Snippet.h"

#include <WyWidgets/frame/WyMoveableFrame.h>
#include <WyWidgets/frame/WyShadowWidget.h>
#include <WyWidgets/frame/WyWidgetUtils.h>

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QToolTip>
#include <QVBoxLayout>

using WyWidgets::WyMoveableFrame;
using WyWidgets::WyShadowWidget;
using WyWidgets::WyWidgetUtils;

namespace {

constexpr int kPictureWidthPx = 460;
constexpr int kToolTipPaddingPx = 8;
constexpr int kStyleSpacingPx = 20;
constexpr int kWidestToolTipPx = 500;
constexpr QSize kDividerRoomPx(400, 220);

QString describe(QRect rect)
{
    return QStringLiteral("%1 × %2 at (%3, %4)")
        .arg(rect.width())
        .arg(rect.height())
        .arg(rect.x())
        .arg(rect.y());
}

QString describe(QPoint point)
{
    return QStringLiteral("(%1, %2)").arg(point.x()).arg(point.y());
}

} // namespace

UtilitiesPage::UtilitiesPage(QWidget* parent)
    : GalleryPage(tr("Utilities"),
                  tr("Helpers that every window needs some day: screens and what they show, tooltips of a "
                     "chosen width, style sheets that follow a property, soft shadows and dividers."),
                  parent)
{
    addScreens();
    addToolTip();
    addStyles();
    addShadow();
    addDividers();
}

void UtilitiesPage::addScreens()
{
    m_picture = new QLabel;
    m_picture->setObjectName(QStringLiteral("gallery_canvas"));
    m_picture->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_picture->setMouseTracking(true);
    m_picture->installEventFilter(this);
    auto* knobs = new KnobPanel;
    knobs->addButton(tr("Grab the screens again"), [this] { grabScreens(); });
    knobs->addReadout(tr("Scale"), QString::number(WyWidgetUtils::GetDpiScale()));
    knobs->addReadout(tr("All screens"), describe(WyWidgetUtils::GetAllScreenGeometry(false)));
    for (int index = 0; index < QGuiApplication::screens().size(); ++index) {
        knobs->addReadout(tr("Screen %1").arg(index),
                          describe(WyWidgetUtils::GetScreenGeometry(index, false)));
        knobs->addReadout(tr("available"), describe(WyWidgetUtils::GetScreenGeometry(index, true)));
    }
    m_place = knobs->addReadout(tr("Pointer"), tr("Move it over the picture"));
    addExample(tr("Screens"), m_picture, knobs, snippet(QStringLiteral("WyWidgetUtils-more")));
    grabScreens();
}

void UtilitiesPage::addToolTip()
{
    m_toolTipText = tr("A tooltip that is too long for one line is broken at spaces. Only a "
                       "wordthatismuchtoolongforalineandlongerstill is "
                       "broken inside, and loses a letter there.");
    m_toolTip = new QLabel;
    m_toolTip->setObjectName(QStringLiteral("gallery_tooltip"));
    m_toolTip->setTextFormat(Qt::PlainText);
    m_toolTip->setFont(QToolTip::font());
    m_toolTip->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_toolTip->setContentsMargins(kToolTipPaddingPx, kToolTipPaddingPx, kToolTipPaddingPx, kToolTipPaddingPx);
    auto* stage = new QWidget;
    auto* layout = new QVBoxLayout(stage);
    layout->addWidget(m_toolTip, 0, Qt::AlignTop | Qt::AlignLeft);
    layout->addStretch(1);
    auto* knobs = new KnobPanel;
    knobs->addInt(tr("Width"), 0, kWidestToolTipPx, m_toolTipWidth, [this](int width) {
        m_toolTipWidth = width;
        wrapToolTip();
    });
    knobs->addText(tr("Text"), m_toolTipText, [this](const QString& text) {
        m_toolTipText = text;
        wrapToolTip();
    });
    m_lineCount = knobs->addReadout(tr("Lines"));
    addExample(tr("Tooltip of a chosen width"), stage, knobs, snippet(QStringLiteral("WyWidgetUtils")));
    wrapToolTip();
}

void UtilitiesPage::addStyles()
{
    auto* state = new QLabel(tr("Recording"));
    state->setObjectName(QStringLiteral("gallery_state"));
    auto* image = new QLabel;
    image->setFixedSize(20, 20);
    WyWidgets::updateStyle(image, QStringLiteral(":/gallery/download.png"),
                           QStringLiteral(":/gallery/download-disabled.png"));
    auto* stage = new QWidget;
    auto* layout = flushLayout<QHBoxLayout>(stage);
    layout->setSpacing(kStyleSpacingPx);
    layout->addWidget(captioned(state, tr("property \"active\"")));
    layout->addWidget(captioned(image, tr("updateStyle")));
    layout->addWidget(captioned(WyWidgets::CreatePoint(nullptr), tr("CreatePoint")));
    layout->addWidget(captioned(WyWidgets::CreateVPoint(nullptr), tr("CreateVPoint")));
    layout->addWidget(captioned(WyWidgets::CreateHPoint(nullptr), tr("CreateHPoint")));
    layout->addStretch();
    auto* knobs = new KnobPanel;
    knobs->addCheck(tr("Active"), false,
                    [state](bool active) { WyWidgetUtils::RefreshStyle(state, "active", active); });
    knobs->addCheck(tr("Image enabled"), true, [image](bool enabled) { image->setEnabled(enabled); });
    addExample(tr("Style helpers"), stage, knobs, snippet(QStringLiteral("WyWidgetUtils-style")));
}

void UtilitiesPage::addShadow()
{
    auto* card = new WyShadowWidget;
    card->ensurePolished(); // The theme chooses the first colour.
    auto* text = new QLabel(tr("A card with a soft shadow"));
    text->setAlignment(Qt::AlignCenter);
    auto* cardLayout = new QVBoxLayout(card);
    cardLayout->addWidget(text);
    card->setFixedSize(260, 110);
    auto* stage = new QWidget;
    auto* layout = new QVBoxLayout(stage);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->addWidget(card, 0, Qt::AlignCenter);
    auto* knobs = new KnobPanel;
    knobs->addColor(tr("Shadow"), card->shadowColor(),
                    [card](const QColor& color) { card->setShadowColor(color); });
    addExample(tr("Shadow"), stage, knobs, snippet(QStringLiteral("WyShadowWidget")));
}

void UtilitiesPage::addDividers()
{
    auto* room = new QFrame;
    room->setObjectName(QStringLiteral("gallery_divider_room"));
    room->setFixedSize(kDividerRoomPx);
    auto* horizontal = new WyMoveableFrame(WyMoveableFrame::kDirection_H, room);
    horizontal->setGeometry(30, 60, 240, 12);
    auto* vertical = new WyMoveableFrame(WyMoveableFrame::kDirection_V, room);
    vertical->setGeometry(320, 30, 12, 150);
    auto* knobs = new KnobPanel;
    QLabel* pressed = knobs->addReadout(tr("Pressed"), tr("none yet"));
    connect(horizontal, &WyMoveableFrame::SignalFrameClickeded, this,
            [pressed] { pressed->setText(tr("the horizontal one")); });
    connect(vertical, &WyMoveableFrame::SignalFrameClickeded, this,
            [pressed] { pressed->setText(tr("the vertical one")); });
    addExample(tr("Dividers to drag"), room, knobs, snippet(QStringLiteral("WyMoveableFrame")));
}

void UtilitiesPage::prepareForPicture()
{
    grabScreens();
}

bool UtilitiesPage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_picture && event->type() == QEvent::MouseMove)
        showPlace(static_cast<QMouseEvent*>(event)->pos());
    return GalleryPage::eventFilter(watched, event);
}

void UtilitiesPage::grabScreens()
{
    m_grab = WyWidgetUtils::GrabAllScreenPixMap();
    if (m_grab.isNull())
        return;
    m_picture->setPixmap(m_grab.scaledToWidth(kPictureWidthPx, Qt::SmoothTransformation));
    m_picture->setFixedSize(m_picture->pixmap(Qt::ReturnByValue).size());
}

void UtilitiesPage::showPlace(QPoint position)
{
    const QPoint pixel = position * m_grab.width() / kPictureWidthPx;
    const QPoint onCanvas = pixel / WyWidgetUtils::GetDpiScale();
    bool found = false;
    const QPoint place = WyWidgetUtils::MapToGlobal(onCanvas, found);
    m_place->setText(found
                         ? tr("%1 on the canvas, %2 on the screens").arg(describe(onCanvas), describe(place))
                         : tr("%1 on the canvas, on no screen").arg(describe(onCanvas)));
}

void UtilitiesPage::wrapToolTip()
{
    const QString wrapped = WyWidgetUtils::ToolTipWrap(m_toolTipText, m_toolTipWidth);
    m_toolTip->setText(wrapped);
    m_lineCount->setText(QString::number(wrapped.count(QLatin1Char('\n')) + 1));
}

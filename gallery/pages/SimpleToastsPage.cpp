#include "pages/SimpleToastsPage.h"

#include "FlushLayout.h"
#include "KnobPanel.h"
#include "Snippet.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

using WyWidgets::WySimpleToast;

namespace {

constexpr int kStyles = 5;
constexpr int kPreviewColumns = 2;
constexpr int kPictureStayMs = 60000;
constexpr QColor kOwnPlateColor(0x5B, 0x3F, 0xA8);
constexpr QColor kOwnTextColor(0xFF, 0xE0, 0x8A);

QStringList styleNames()
{
    return {SimpleToastsPage::tr("Message"), SimpleToastsPage::tr("Success"), SimpleToastsPage::tr("Warning"),
            SimpleToastsPage::tr("Information"), SimpleToastsPage::tr("Error")};
}

QStringList placeNames()
{
    return {SimpleToastsPage::tr("Top right"),     SimpleToastsPage::tr("Top left"),
            SimpleToastsPage::tr("Top centre"),    SimpleToastsPage::tr("Top, full width"),
            SimpleToastsPage::tr("Bottom right"),  SimpleToastsPage::tr("Bottom left"),
            SimpleToastsPage::tr("Bottom centre"), SimpleToastsPage::tr("Bottom, full width")};
}

/// A five-pointed star: a picture that none of the styles has.
QPixmap star(const QWidget* widget, const QColor& color)
{
    constexpr int kSizePx = 50;
    constexpr QPointF kCentre(25, 18);
    const qreal scale = widget->devicePixelRatioF();
    QPixmap pixmap(QSize(kSizePx, kSizePx) * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPolygonF points;
    for (int i = 0; i < 10; ++i)
        points += kCentre + QLineF::fromPolar(i % 2 == 0 ? 15 : 6.5, 90 + 36 * i).p2();
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(points);
    return pixmap;
}

} // namespace

SimpleToastsPage::SimpleToastsPage(QWidget* parent)
    : GalleryPage(
          tr("Simple toasts"),
          tr("Light notifications that stand in one column, fade in, stay for a moment and are gone. Under "
             "the "
             "pointer a toast waits; a click hides it; a text too long for its plate is its tooltip."),
          parent),
      m_ownPreview(new QLabel),
      m_text(tr("File saved")),
      m_plateColor(kOwnPlateColor),
      m_textColor(kOwnTextColor)
{
    addStyles();
    addOwnLook();
    drawStyles();
    drawOwn();
}

void SimpleToastsPage::prepareForPicture()
{
    const unsigned int stayMs = m_stayMs;
    m_stayMs = kPictureStayMs;
    for (const int style :
         {WySimpleToast::TOASTR_SUCCESS, WySimpleToast::TOASTR_WARNING, WySimpleToast::TOASTR_ERROR}) {
        WySimpleToast* toast = createToast();
        toast->setStyle(static_cast<WySimpleToast::TOASTR_STYLE>(style));
        toast->setOrientation(WySimpleToast::TOASTR_BOTTOM_CENTER);
        show(toast);
        m_pictured += toast;
    }
    m_stayMs = stayMs;
}

void SimpleToastsPage::endPicture()
{
    for (const QPointer<WySimpleToast>& toast : qAsConst(m_pictured))
        delete toast;
    m_pictured.clear();
}

void SimpleToastsPage::addStyles()
{
    auto* previews = new QWidget;
    auto* grid = flushLayout<QGridLayout>(previews);
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(16);
    const QStringList names = styleNames();
    for (int style = 0; style < kStyles; ++style) {
        auto* preview = new QLabel;
        preview->setAccessibleName(names.at(style));
        m_stylePreviews += preview;
        grid->addWidget(preview, style / kPreviewColumns, style % kPreviewColumns, Qt::AlignLeft);
    }
    grid->setColumnStretch(kPreviewColumns, 1);
    grid->setRowStretch(kStyles / kPreviewColumns + 1, 1);

    auto* knobs = new KnobPanel;
    knobs->addText(tr("Text"), m_text, [this](const QString& text) {
        m_text = text;
        drawStyles();
        drawOwn();
    });
    knobs->addChoice(tr("Style"), names, m_style, [this](int style) { m_style = style; });
    knobs->addInt(tr("Opacity"), 0, 255, int(m_opacity), [this](int opacity) {
        m_opacity = opacity;
        drawStyles();
    });
    addPlaceKnobs(knobs);
    knobs->addButton(tr("Show a toast"), [this] { showStyled(m_style); });
    knobs->addButton(tr("Show one of each style"), [this] {
        for (int style = 0; style < kStyles; ++style)
            showStyled(style);
    });
    addExample(tr("Five styles, eight places"), previews, knobs, snippet(QStringLiteral("WySimpleToast")));
}

void SimpleToastsPage::addPlaceKnobs(KnobPanel* knobs)
{
    QComboBox* places =
        knobs->addChoice(tr("Place"), placeNames(), m_place, [this](int place) { m_place = place; });
    places->setToolTip(
        tr("The right column is measured from the left edge of the desktop, so it suits maximised "
           "windows and toasts on the desktop."));
    knobs->addChoice(tr("Area"), {tr("This window"), tr("The desktop")}, 0,
                     [this](int index) { m_onDesktop = index == 1; });
    knobs->addInt(tr("Stay (ms)"), 0, 60000, int(m_stayMs), [this](int msec) { m_stayMs = msec; });
    knobs->addInt(tr("Fade in (ms)"), 0, 5000, int(m_fadeInMs), [this](int msec) { m_fadeInMs = msec; });
    knobs->addInt(tr("Fade out (ms)"), 0, 5000, int(m_fadeOutMs), [this](int msec) { m_fadeOutMs = msec; });
}

void SimpleToastsPage::addOwnLook()
{
    m_ownPreview->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_ownPreview->setAccessibleName(tr("A toast with a picture and colours of its own"));
    auto* knobs = new KnobPanel;
    knobs->addColor(tr("Plate"), m_plateColor, [this](const QColor& color) {
        m_plateColor = color;
        drawOwn();
    });
    knobs->addColor(tr("Text"), m_textColor, [this](const QColor& color) {
        m_textColor = color;
        drawOwn();
    });
    knobs->addButton(tr("Show the toast"), [this] {
        WySimpleToast* toast = createToast();
        dressOwn(toast);
        show(toast);
    });
    addExample(tr("A look of its own"), m_ownPreview, knobs, snippet(QStringLiteral("WySimpleToast-more")));
}

/// A toast with the common settings, on the chosen area.
WySimpleToast* SimpleToastsPage::createToast()
{
    auto* toast = new WySimpleToast(m_onDesktop ? nullptr : window());
    toast->setText(m_text);
    toast->setOpacity(m_opacity);
    toast->setOrientation(static_cast<WySimpleToast::TOASTR_ORIENTATION>(m_place));
    return toast;
}

void SimpleToastsPage::show(WySimpleToast* toast)
{
    toast->setDuration(m_stayMs);
    toast->setShowDuration(m_fadeInMs);
    toast->setHideDuration(m_fadeOutMs);
    toast->show();
}

void SimpleToastsPage::showStyled(int style)
{
    WySimpleToast* toast = createToast();
    toast->setStyle(static_cast<WySimpleToast::TOASTR_STYLE>(style));
    show(toast);
}

void SimpleToastsPage::dressOwn(WySimpleToast* toast) const
{
    toast->setIcon(star(this, m_textColor));
    toast->setBackgroundColor(m_plateColor.name(QColor::HexArgb));
    toast->setTextColor(m_textColor.name());
}

void SimpleToastsPage::drawStyles()
{
    for (int style = 0; style < kStyles; ++style) {
        WySimpleToast toast;
        toast.setText(m_text);
        toast.setOpacity(m_opacity);
        toast.setStyle(static_cast<WySimpleToast::TOASTR_STYLE>(style));
        m_stylePreviews.at(style)->setPixmap(toast.grab());
        m_stylePreviews.at(style)->setToolTip(toast.toolTip());
    }
}

void SimpleToastsPage::drawOwn()
{
    WySimpleToast toast;
    toast.setText(m_text);
    dressOwn(&toast);
    m_ownPreview->setPixmap(toast.grab());
}

#include "pages/PopupsPage.h"

#include "FlushLayout.h"
#include "KnobPanel.h"
#include "Snippet.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

using WyWidgets::WyPopupBox;
using WyWidgets::WyPopupWidget;

namespace {

constexpr int kGapPx = 4;
constexpr int kSwatchSizePx = 28;
constexpr int kSwatchColumns = 6;
constexpr int kLastCloseMs = 3000;
const char* const kColors[] = {"#E5484D", "#F76808", "#FFB224", "#46A758", "#12A594", "#0091FF",
                               "#3E63DD", "#6E56CF", "#AB4ABA", "#E93D82", "#8D8D8D", "#1C1C1C"};

QPixmap swatch(const QWidget* widget, const QColor& color)
{
    QPixmap pixmap(QSize(kSwatchSizePx, kSwatchSizePx) * widget->devicePixelRatioF());
    pixmap.fill(color);
    return pixmap;
}

/// The panel that a popup offers for content.
QWidget* panelOf(const QWidget* popup)
{
    return popup->findChild<QWidget*>(QStringLiteral("widget_content"));
}

/// The button with room for its popup below.
QWidget* stageOf(QPushButton* button, const QWidget* popup)
{
    auto* stage = new QWidget;
    stage->setMinimumHeight(button->sizeHint().height() + kGapPx + popup->sizeHint().height());
    auto* layout = flushLayout<QVBoxLayout>(stage);
    layout->addWidget(button, 0, Qt::AlignTop | Qt::AlignLeft);
    return stage;
}

/// Shows a popup below the button that opens it.
void showBelow(QWidget* popup, const QWidget* button)
{
    popup->adjustSize();
    popup->move(button->mapToGlobal(QPoint(0, button->height() + kGapPx)));
    popup->show();
}

} // namespace

PopupsPage::PopupsPage(QWidget* parent)
    : GalleryPage(
          tr("Popups"),
          tr("Floating panels for the host's own content. They paint nothing: the style sheet dresses the "
             "panel, and the window around it is translucent."),
          parent),
      m_colorBox(new WyPopupBox(this)),
      m_options(new WyPopupWidget(this)),
      m_colorButton(new QPushButton(tr("Colour"))),
      m_optionsButton(new QPushButton(tr("Columns")))
{
    fillColorBox();
    fillOptionsPanel();
    addOptionsPanel();
    addColorBox();
}

void PopupsPage::prepareForPicture()
{
    // Two popups exclude each other; a tool-tip window stays beside one.
    m_options->setPopup(false);
    openOptionsPanel();
    openColorBox();
}

void PopupsPage::endPicture()
{
    m_colorBox->close();
    m_options->close();
    m_options->setPopup(true);
}

void PopupsPage::addOptionsPanel()
{
    auto* knobs = new KnobPanel;
    knobs->addChoice(tr("Window"), {tr("Popup"), tr("Tool tip")}, 0,
                     [this](int index) { m_options->setPopup(index == 0); });
    knobs
        ->addButton(tr("Open it and close it in 3 s"),
                    [this] {
                        openOptionsPanel();
                        m_options->StartTimer(kLastCloseMs);
                    })
        ->setToolTip(tr("Only tool-tip windows close by themselves: enter the panel to keep it."));
    m_closings = knobs->addReadout(tr("Closings"), QString::number(m_closingCount));
    connect(m_options, &WyPopupWidget::SignalPopupClose, this,
            [this] { m_closings->setText(QString::number(++m_closingCount)); });
    connect(m_optionsButton, &QPushButton::clicked, this, &PopupsPage::openOptionsPanel);
    addExample(tr("WyPopupWidget: popup or tool-tip window"), stageOf(m_optionsButton, m_options), knobs,
               snippet(QStringLiteral("WyPopupWidget")));
}

void PopupsPage::addColorBox()
{
    chooseColor(QColor(QLatin1String(kColors[5])));
    connect(m_colorButton, &QPushButton::clicked, this, &PopupsPage::openColorBox);
    addExample(tr("WyPopupBox: a box of colours"), stageOf(m_colorButton, m_colorBox), nullptr,
               snippet(QStringLiteral("WyPopupBox")));
}

void PopupsPage::fillColorBox()
{
    auto* grid = new QGridLayout(panelOf(m_colorBox));
    grid->setSpacing(6);
    int index = 0;
    for (const char* name : kColors) {
        const QColor color{QLatin1String(name)};
        auto* button = new QPushButton(swatch(this, color), QString());
        button->setIconSize(QSize(kSwatchSizePx, kSwatchSizePx));
        button->setFixedSize(kSwatchSizePx + 8, kSwatchSizePx + 8);
        button->setProperty("flat", true);
        button->setToolTip(color.name());
        button->setAccessibleName(tr("Colour %1").arg(color.name()));
        grid->addWidget(button, index / kSwatchColumns, index % kSwatchColumns);
        ++index;
        connect(button, &QPushButton::clicked, this, [this, color] {
            chooseColor(color);
            m_colorBox->close();
        });
    }
}

void PopupsPage::fillOptionsPanel()
{
    auto* layout = new QVBoxLayout(panelOf(m_options));
    layout->setContentsMargins(16, 14, 16, 14);
    layout->setSpacing(10);
    layout->addWidget(new QLabel(tr("Shown columns")));
    for (const QString& column : {tr("Name"), tr("Size"), tr("Changed"), tr("Owner")}) {
        auto* box = new QCheckBox(column);
        box->setChecked(true);
        layout->addWidget(box);
    }
}

void PopupsPage::chooseColor(const QColor& color)
{
    m_colorButton->setIcon(swatch(this, color));
    m_colorButton->setText(QLatin1Char(' ') + color.name());
}

void PopupsPage::openColorBox()
{
    showBelow(m_colorBox, m_colorButton);
}

void PopupsPage::openOptionsPanel()
{
    showBelow(m_options, m_optionsButton);
}

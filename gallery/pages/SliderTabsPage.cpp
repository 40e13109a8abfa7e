#include "pages/SliderTabsPage.h"

#include "FlushLayout.h"
#include "KnobPanel.h"
#include "Snippet.h"

#include <WyWidgets/wycontrol/WyFlatTab.h>
#include <WyWidgets/wycontrol/WyFlatVTab.h>
#include <WyWidgets/wycontrol/WyHandleSlider.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>

using WyWidgets::WyFlatTab;
using WyWidgets::WyFlatVTab;
using WyWidgets::WyHandleSlider;

namespace {

constexpr int kSliderHeightPx = 16;
constexpr QMargins kPlayerMarginsPx(16, 14, 16, 12);
constexpr int kTrackSeconds = 240;
constexpr int kListWidthPx = 190; // its tabs are 156 px wide, with 16 px and the border beside them

QLabel* createPage(const QString& text)
{
    auto* page = new QLabel(text);
    page->setWordWrap(true);
    page->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    return page;
}

} // namespace

SliderTabsPage::SliderTabsPage(QWidget* parent)
    : GalleryPage(tr("Slider and tabs"),
                  tr("A thin seek bar for players, and tab strips that tell which tab was clicked; the pages "
                     "behind them are the host's."),
                  parent),
      m_slider(new WyHandleSlider),
      m_tabs(new WyFlatTab),
      m_list(new WyFlatVTab)
{
    addSlider();
    addHorizontalTabs();
    addVerticalTabs();
}

void SliderTabsPage::prepareForPicture()
{
    hover(true);
    m_list->findChildren<QPushButton*>().at(1)->click();
}

void SliderTabsPage::endPicture()
{
    hover(false);
}

/// As the pointer does: the handle shows while it is over the slider.
void SliderTabsPage::hover(bool on)
{
    QEvent event(on ? QEvent::Enter : QEvent::Leave);
    QCoreApplication::sendEvent(m_slider, &event);
}

void SliderTabsPage::addSlider()
{
    m_slider->setFixedHeight(kSliderHeightPx);
    m_slider->setMinimumWidth(240);
    m_slider->SetMaxValue(kTrackSeconds);
    m_slider->SetSliderPos(kTrackSeconds / 3);
    auto* position = new QLabel;
    const auto showPosition = [this, position] {
        position->setText(tr("Second %1").arg(m_slider->GetSliderPos()));
    };
    showPosition();
    connect(m_slider, &WyHandleSlider::SignalPosChanged, position,
            [position](qint64 second) { position->setText(tr("Second %1").arg(second)); });
    auto* player = new QFrame;
    player->setObjectName(QStringLiteral("gallery_player"));
    auto* column = new QVBoxLayout(player);
    column->setContentsMargins(kPlayerMarginsPx);
    column->addWidget(m_slider);
    column->addWidget(position);
    auto* stage = new QWidget;
    auto* stageColumn = flushLayout<QVBoxLayout>(stage);
    stageColumn->addWidget(player);
    stageColumn->addStretch(1);

    auto* knobs = new KnobPanel;
    knobs->addInt(tr("Maximum"), 1, 100000, kTrackSeconds, [this, showPosition](int maximum) {
        m_slider->SetMaxValue(maximum);
        m_slider->update();
        showPosition();
    });
    knobs->addInt(tr("Position"), 0, 100000, kTrackSeconds / 3, [this, showPosition](int pos) {
        m_slider->SetSliderPos(pos);
        showPosition();
    });
    QLabel* last = knobs->addReadout(tr("Signalled"), tr("nothing yet"));
    connect(m_slider, &WyHandleSlider::SignalHanderPressed, last, [last] { last->setText(tr("pressed")); });
    connect(m_slider, &WyHandleSlider::SignalHanderReleased, last, [last] { last->setText(tr("released")); });
    connect(m_slider, &WyHandleSlider::SignalPosChanged, last,
            [last](qint64 value) { last->setText(tr("position %1").arg(value)); });
    knobs->addButton(tr("Jump to the middle"), [this] { m_slider->MoveToPos(m_slider->width() / 2); });
    addExample(tr("WyHandleSlider"), stage, knobs, snippet(QStringLiteral("WyHandleSlider")));
}

void SliderTabsPage::addHorizontalTabs()
{
    auto* pages = new QStackedWidget;
    const QStringList names{tr("Files"), tr("Branches"), tr("Releases")};
    for (const QString& name : names) {
        m_tabs->AddTab(name);
        pages->addWidget(createPage(tr("What \"%1\" holds.").arg(name)));
    }
    m_tabs->SelectTab(0);
    connect(m_tabs, &WyFlatTab::SignalSelectChanged, pages, &QStackedWidget::setCurrentIndex);

    auto* stage = new QWidget;
    auto* column = flushLayout<QVBoxLayout>(stage);
    column->setSpacing(12);
    column->addWidget(m_tabs);
    column->addWidget(pages, 1);

    auto* knobs = new KnobPanel;
    QSpinBox* index = knobs->addInt(tr("Tab"), 0, 20, 0, [](int) {});
    QLineEdit* text = knobs->addText(tr("Text"), tr("Wiki"), [](const QString&) {});
    knobs->addButton(tr("Select it"), [this, index, pages] {
        m_tabs->SelectTab(index->value());
        pages->setCurrentIndex(m_tabs->CurrentSelect());
    });
    knobs->addButton(tr("Give it the text"),
                     [this, index, text] { m_tabs->UpdateTabText(index->value(), text->text()); });
    knobs->addButton(tr("Add a tab with the text"), [this, pages, text] {
        m_tabs->AddTab(text->text());
        pages->addWidget(createPage(tr("What \"%1\" holds.").arg(text->text())));
    });
    addExample(tr("WyFlatTab"), stage, knobs, snippet(QStringLiteral("WyFlatTab")));
}

void SliderTabsPage::addVerticalTabs()
{
    auto* pages = new QStackedWidget;
    m_list->setFixedWidth(kListWidthPx);
    m_list->setMinimumHeight(190);
    for (const QString& name : {tr("General"), tr("Account"), tr("Notifications"), tr("About")}) {
        m_list->AddTab(name);
        pages->addWidget(createPage(tr("The settings of \"%1\".").arg(name)));
    }
    m_list->findChild<QPushButton*>()->setChecked(true);
    connect(m_list, &WyFlatVTab::SignalSelectChanged, pages, &QStackedWidget::setCurrentIndex);

    auto* stage = new QWidget;
    auto* row = flushLayout<QHBoxLayout>(stage);
    row->setSpacing(20);
    row->addWidget(m_list);
    row->addWidget(pages, 1);

    auto* knobs = new KnobPanel;
    QLabel* signalled = knobs->addReadout(tr("Signalled"), tr("nothing yet"));
    connect(m_list, &WyFlatVTab::SignalSelectChanged, signalled,
            [signalled](int index) { signalled->setText(tr("index %1").arg(index)); });
    addExample(tr("WyFlatVTab"), stage, knobs, snippet(QStringLiteral("WyFlatVTab")));
}

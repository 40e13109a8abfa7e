#include "pages/TabsPage.h"

#include "KnobPanel.h"

#include <WyWidgets/wycontrol/WyFlatTab.h>
#include <WyWidgets/wycontrol/WyFlatVTab.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>

using WyWidgets::WyFlatTab;
using WyWidgets::WyFlatVTab;

namespace {

constexpr int kListWidthPx = 190; // its tabs are 156 px wide, with 16 px and the border beside them

QLabel* createPage(const QString& text)
{
    auto* page = new QLabel(text);
    page->setWordWrap(true);
    page->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    return page;
}

} // namespace

TabsPage::TabsPage(QWidget* parent)
    : GalleryPage(tr("Tabs"),
                  tr("Tab strips that tell which tab was clicked; the pages behind them are the host's. The "
                     "underline, the bar and the highlight glide to the selected tab."),
                  parent),
      m_tabs(new WyFlatTab),
      m_list(new WyFlatVTab)
{
    addHorizontalTabs();
    addVerticalTabs();
}

void TabsPage::prepareForPicture()
{
    m_list->findChildren<QPushButton*>().at(1)->click();
}

void TabsPage::addHorizontalTabs()
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
    auto* column = new QVBoxLayout(stage);
    column->setContentsMargins(0, 0, 0, 0);
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
    addExample(
        tr("WyFlatTab"), stage, knobs,
        QStringLiteral("for (const QString& name : {tr(\"Files\"), tr(\"Branches\"), tr(\"Releases\")})\n"
                       "    tabs->AddTab(name);\n"
                       "tabs->SelectTab(0);\n"
                       "connect(tabs, &WyFlatTab::SignalSelectChanged,\n"
                       "        pages, &QStackedWidget::setCurrentIndex);"));
}

void TabsPage::addVerticalTabs()
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
    auto* row = new QHBoxLayout(stage);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(20);
    row->addWidget(m_list);
    row->addWidget(pages, 1);

    auto* knobs = new KnobPanel;
    QLabel* signalled = knobs->addReadout(tr("Signalled"), tr("nothing yet"));
    connect(m_list, &WyFlatVTab::SignalSelectChanged, signalled,
            [signalled](int index) { signalled->setText(tr("index %1").arg(index)); });
    addExample(tr("WyFlatVTab"), stage, knobs,
               QStringLiteral("list->AddTab(tr(\"General\"));\n"
                              "list->AddTab(tr(\"Account\"));\n"
                              "list->findChild<QPushButton*>()->setChecked(true);  // start with the first\n"
                              "connect(list, &WyFlatVTab::SignalSelectChanged,\n"
                              "        pages, &QStackedWidget::setCurrentIndex);"));
}

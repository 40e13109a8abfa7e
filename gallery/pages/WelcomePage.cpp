#include "pages/WelcomePage.h"

#include "FlushLayout.h"
#include "KnobPanel.h"
#include "PageTile.h"
#include "Pages.h"
#include "Snippet.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>

namespace {

constexpr int kTileColumns = 3;

QPushButton* createButton(const QString& text, bool primary, bool enabled)
{
    auto* button = new QPushButton(text);
    button->setProperty("primary", primary);
    button->setEnabled(enabled);
    return button;
}

QCheckBox* createCheck(const QString& text, Qt::CheckState state, bool enabled)
{
    auto* box = new QCheckBox(text);
    box->setTristate(state == Qt::PartiallyChecked);
    box->setCheckState(state);
    box->setEnabled(enabled);
    return box;
}

} // namespace

WelcomePage::WelcomePage(QWidget* parent)
    : GalleryPage(tr("WyWidgets gallery"),
                  tr("Every control of the library, live. Choose a family on the left; turn the knobs beside "
                     "an example; the code below it is all that the example needs."),
                  parent)
{
    addTiles();
    addFirstSteps();
    addPlainControls();
}

/// Every page that shows classes, in a grid.
void WelcomePage::addTiles()
{
    auto* tiles = new QWidget;
    auto* grid = flushLayout<QGridLayout>(tiles);
    grid->setSpacing(14);
    const QVector<PageEntry> pages = allPages();
    int count = 0;
    for (const PageEntry& page : pages) {
        if (page.classes.isEmpty())
            continue;
        auto* tile = new PageTile(page);
        connect(tile, &QPushButton::clicked, this, [this, name = page.name] { emit pageRequested(name); });
        grid->addWidget(tile, count / kTileColumns, count % kTileColumns);
        ++count;
    }
    for (int column = 0; column < kTileColumns; ++column)
        grid->setColumnStretch(column, 1);
    addPlain(tiles);
}

void WelcomePage::addFirstSteps()
{
    auto* hint = new QLabel(
        tr("<p>Search finds pages and classes alike: press %1 and type <i>toast</i> or <i>WyBubbleTip</i>. "
           "The button beside the window buttons switches between the light and the dark theme.</p>"
           "<p>Run the gallery with <code>--grab DIR</code> to save a picture of every page.</p>")
            .arg(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText)));
    hint->setWordWrap(true);
    addExample(tr("Finding your way"), hint, nullptr, snippet(QStringLiteral("guide-theme")));
}

void WelcomePage::addPlainControls()
{
    auto* controls = new QWidget;
    auto* grid = flushLayout<QGridLayout>(controls);
    grid->setHorizontalSpacing(20);
    grid->setVerticalSpacing(12);
    grid->setColumnStretch(3, 1);
    grid->addWidget(createButton(tr("Button"), false, true), 0, 0);
    grid->addWidget(createButton(tr("Primary"), true, true), 0, 1);
    grid->addWidget(createButton(tr("Disabled"), false, false), 0, 2);
    grid->addWidget(createCheck(tr("Checked"), Qt::Checked, true), 1, 0);
    grid->addWidget(createCheck(tr("Partly"), Qt::PartiallyChecked, true), 1, 1);
    grid->addWidget(createCheck(tr("Disabled"), Qt::Checked, false), 1, 2);
    auto* first = new QRadioButton(tr("One"));
    first->setChecked(true);
    grid->addWidget(first, 2, 0);
    grid->addWidget(new QRadioButton(tr("Other")), 2, 1);
    grid->addWidget(createCheck(tr("Unchecked"), Qt::Unchecked, true), 2, 2);
    auto* progress = new QProgressBar;
    progress->setValue(60);
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setValue(40);
    connect(slider, &QSlider::valueChanged, progress, &QProgressBar::setValue);
    grid->addWidget(slider, 3, 0, 1, 3);
    grid->addWidget(progress, 4, 0, 1, 3);
    grid->setRowStretch(5, 1);

    auto* knobs = new KnobPanel;
    knobs->addText(tr("Text"), tr("Edit me"), [](const QString&) {});
    knobs->addChoice(tr("Choice"), {tr("First"), tr("Second"), tr("Third")}, 0, [](int) {});
    knobs->addInt(tr("Value"), 0, 100, 60, [progress](int value) { progress->setValue(value); });
    knobs->addCheck(tr("Enabled"), true, [controls](bool on) { controls->setEnabled(on); });
    addExample(tr("Qt's own controls under the theme"), controls, knobs, QString());
}

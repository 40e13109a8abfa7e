#include "pages/FlowLayoutPage.h"

#include "FlushLayout.h"
#include "KnobPanel.h"
#include "Snippet.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRandomGenerator>

using WyWidgets::WyFlowLayout;

namespace {

constexpr int kFirstTagCount = 60;
constexpr int kManyTagCount = 300;

QString randomTag()
{
    static const QStringList colors = {
        QStringLiteral("amber"), QStringLiteral("blue"),  QStringLiteral("coral"), QStringLiteral("indigo"),
        QStringLiteral("olive"), QStringLiteral("pearl"), QStringLiteral("violet")};
    static const QStringList things = {QStringLiteral("anchor"),      QStringLiteral("bridge"),
                                       QStringLiteral("lighthouse"),  QStringLiteral("map"),
                                       QStringLiteral("observatory"), QStringLiteral("oak"),
                                       QStringLiteral("telescope")};
    static QRandomGenerator random; // its own, so that pictures of the page are alike
    return colors.at(random.bounded(colors.size())) + QLatin1Char(' ') +
           things.at(random.bounded(things.size()));
}

} // namespace

FlowLayoutPage::FlowLayoutPage(QWidget* parent)
    : GalleryPage(
          tr("Flow layout"),
          tr("Items keep their preferred sizes and wrap into rows like words. Resize the window: the height "
             "follows from the width."),
          parent)
{
    addExample(tr("Tag editor"), createEditor(), createKnobs(), snippet(QStringLiteral("WyFlowLayout")));
    addTags(kFirstTagCount);
}

QWidget* FlowLayoutPage::createEditor()
{
    auto* editor = new QWidget;
    auto* column = flushLayout<QVBoxLayout>(editor);
    auto* row = new QHBoxLayout;
    m_newTag = new QLineEdit;
    m_newTag->setPlaceholderText(tr("New tag"));
    m_newTag->setAccessibleName(tr("New tag"));
    auto* add = new QPushButton(tr("Add"));
    const auto addTyped = [this] {
        addTag(m_newTag->text().trimmed());
        m_newTag->clear();
    };
    connect(m_newTag, &QLineEdit::returnPressed, this, addTyped);
    connect(add, &QPushButton::clicked, this, addTyped);
    row->addWidget(m_newTag, 1);
    row->addWidget(add);
    column->addLayout(row);
    m_tags = new QWidget;
    m_tags->setObjectName(QStringLiteral("gallery_tags"));
    m_layout = new WyFlowLayout(m_tags, m_margin, m_hSpacing, m_vSpacing);
    column->addWidget(m_tags);
    column->addStretch(1);
    return editor;
}

KnobPanel* FlowLayoutPage::createKnobs()
{
    auto* knobs = new KnobPanel;
    knobs->addInt(tr("Margin"), -1, 40, m_margin, [this](int value) {
        m_margin = value;
        rebuildLayout();
    });
    knobs->addInt(tr("Horizontal spacing"), -1, 40, m_hSpacing, [this](int value) {
        m_hSpacing = value;
        rebuildLayout();
    });
    knobs->addInt(tr("Vertical spacing"), -1, 40, m_vSpacing, [this](int value) {
        m_vSpacing = value;
        rebuildLayout();
    });
    knobs->addButton(tr("Add %1 tags").arg(kManyTagCount), [this] { addTags(kManyTagCount); });
    knobs->addButton(tr("Remove all"), [this] { removeAll(); });
    m_count = knobs->addReadout(tr("Tags"));
    return knobs;
}

void FlowLayoutPage::addTag(const QString& text)
{
    if (text.isEmpty())
        return;
    auto* tag = new QPushButton(text + QStringLiteral("  \u00d7"), m_tags);
    tag->setProperty("gallery_tag", true);
    tag->setToolTip(tr("Remove this tag"));
    connect(tag, &QPushButton::clicked, this, [this, tag] {
        tag->deleteLater();
        QMetaObject::invokeMethod(this, &FlowLayoutPage::showCount, Qt::QueuedConnection);
    });
    m_layout->addWidget(tag);
    showCount();
}

void FlowLayoutPage::addTags(int count)
{
    for (int i = 0; i < count; ++i)
        addTag(randomTag());
}

void FlowLayoutPage::removeAll()
{
    while (QLayoutItem* item = m_layout->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    showCount();
}

void FlowLayoutPage::rebuildLayout()
{
    auto* next = new WyFlowLayout(m_margin, m_hSpacing, m_vSpacing);
    while (QLayoutItem* item = m_layout->takeAt(0))
        next->addItem(item);
    delete m_layout;
    m_layout = next;
    m_tags->setLayout(m_layout);
}

void FlowLayoutPage::showCount()
{
    m_count->setText(QString::number(m_layout->count()));
}

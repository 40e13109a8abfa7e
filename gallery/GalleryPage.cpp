#include "GalleryPage.h"

#include "KnobPanel.h"

#include <QFontDatabase>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

GalleryPage::GalleryPage(const QString& heading, const QString& introduction, QWidget* parent)
    : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setObjectName(QStringLiteral("gallery_page"));

    auto* content = new QWidget;
    content->setObjectName(QStringLiteral("gallery_page_content"));
    m_examples = new QVBoxLayout(content);
    m_examples->setContentsMargins(28, 20, 28, 28);
    m_examples->setSpacing(18);

    auto* headingLabel = new QLabel(heading);
    headingLabel->setObjectName(QStringLiteral("gallery_heading"));
    auto* introductionLabel = new QLabel(introduction);
    introductionLabel->setObjectName(QStringLiteral("gallery_introduction"));
    introductionLabel->setWordWrap(true);
    m_examples->addWidget(headingLabel);
    m_examples->addWidget(introductionLabel);
    m_examples->addStretch(1);
    setWidget(content);
}

void GalleryPage::addExample(const QString& title, QWidget* example, KnobPanel* knobs, const QString& snippet)
{
    auto* box = new QGroupBox(title);
    auto* layout = new QVBoxLayout(box);
    auto* row = new QHBoxLayout;
    row->setSpacing(24);
    row->addWidget(example, 1);
    if (knobs)
        row->addWidget(knobs, 0, Qt::AlignTop);
    layout->addLayout(row);
    if (!snippet.isEmpty()) {
        auto* code = new QLabel(snippet);
        code->setObjectName(QStringLiteral("gallery_snippet"));
        code->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
        code->setTextFormat(Qt::PlainText);
        code->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        layout->addWidget(code);
    }
    m_examples->insertWidget(m_examples->count() - 1, box);
}

void GalleryPage::prepareForPicture() {}

void GalleryPage::endPicture() {}

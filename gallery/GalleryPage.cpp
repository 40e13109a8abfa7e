#include "GalleryPage.h"

#include "CodeView.h"
#include "FlushLayout.h"
#include "KnobPanel.h"

#include "WyWidgets/frame/WyWidgetUtils.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr qreal kHeadingScale = 1.9;
constexpr qreal kIntroductionScale = 1.1;
constexpr qreal kTitleScale = 1.1;
constexpr int kTextWidthPx = 760;
constexpr int kBesideGapPx = 16;
constexpr int kCopiedMs = 1500;
constexpr QMargins kPageMarginsPx(20, 26, 28, 32);
constexpr QMargins kStageMarginsPx(20, 16, 20, 20);
constexpr QMargins kCodeMarginsPx(20, 12, 10, 12);

QLabel* createText(const QString& text, const char* objectName, qreal scale)
{
    auto* label = new QLabel(text);
    label->setObjectName(QLatin1String(objectName));
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * scale);
    label->setFont(font);
    return label;
}

QPushButton* createCopyButton(const QString& snippet)
{
    auto* button = new QPushButton;
    button->setObjectName(QStringLiteral("gallery_copy"));
    button->setFixedSize(28, 28);
    button->setToolTip(GalleryPage::tr("Copy"));
    button->setAccessibleName(GalleryPage::tr("Copy the source code"));
    QObject::connect(button, &QPushButton::clicked, button, [button, snippet] {
        QApplication::clipboard()->setText(snippet);
        WyWidgets::WyWidgetUtils::RefreshStyle(button, "copied", true);
        QTimer::singleShot(kCopiedMs, button,
                           [button] { WyWidgets::WyWidgetUtils::RefreshStyle(button, "copied", false); });
    });
    return button;
}

} // namespace

GalleryPage::GalleryPage(const QString& heading, const QString& introduction, QWidget* parent)
    : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setObjectName(QStringLiteral("gallery_page"));

    auto* content = new QWidget;
    content->setObjectName(QStringLiteral("gallery_page_content"));
    m_examples = new QVBoxLayout(content);
    m_examples->setContentsMargins(kPageMarginsPx);
    m_examples->setSpacing(20);

    auto* text = new QVBoxLayout;
    text->setSpacing(6);
    text->addWidget(createText(heading, "gallery_heading", kHeadingScale), 0, Qt::AlignLeft);
    QLabel* introductionLabel = createText(introduction, "gallery_introduction", kIntroductionScale);
    introductionLabel->setWordWrap(true);
    introductionLabel->setMaximumWidth(kTextWidthPx);
    // A column would ask for the label's height at the full width of the page; a row heeds its maximum.
    auto* introductionRow = new QHBoxLayout;
    introductionRow->addWidget(introductionLabel, 1);
    introductionRow->addStretch();
    text->addLayout(introductionRow);
    m_examples->addLayout(text);
    m_examples->addStretch(1);
    setWidget(content);
}

void GalleryPage::addExample(const QString& title, QWidget* example, KnobPanel* knobs, const QString& snippet)
{
    auto* card = new QFrame;
    card->setObjectName(QStringLiteral("gallery_example"));
    auto* layout = new QVBoxLayout(card);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);

    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    row->addWidget(createStage(title, example), 1);
    if (knobs) {
        auto* line = new QFrame;
        line->setObjectName(QStringLiteral("gallery_line"));
        line->setFixedWidth(1);
        row->addWidget(line);
        knobs->setProperty("last", snippet.isEmpty());
        row->addWidget(knobs);
    }
    layout->addLayout(row);
    if (!snippet.isEmpty())
        layout->addWidget(createCode(snippet));
    addPlain(card);
}

void GalleryPage::addPlain(QWidget* widget)
{
    m_examples->insertWidget(m_examples->count() - 1, widget);
}

QWidget* GalleryPage::atOwnSize(QWidget* control, QWidget* beside)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(kBesideGapPx);
    row->addWidget(control);
    if (beside)
        row->addWidget(beside);
    row->addStretch(1);
    auto* stage = new QWidget;
    auto* column = flushLayout<QVBoxLayout>(stage);
    column->addLayout(row);
    column->addStretch(1);
    return stage;
}

QWidget* GalleryPage::captioned(QWidget* thing, const QString& caption)
{
    auto* label = new QLabel(caption);
    label->setObjectName(QStringLiteral("gallery_readout"));
    auto* box = new QWidget;
    auto* layout = flushLayout<QVBoxLayout>(box);
    layout->addWidget(thing, 1, Qt::AlignCenter);
    layout->addWidget(label, 0, Qt::AlignHCenter);
    return box;
}

QWidget* GalleryPage::createStage(const QString& title, QWidget* example)
{
    auto* stage = new QWidget;
    auto* layout = new QVBoxLayout(stage);
    layout->setContentsMargins(kStageMarginsPx);
    layout->setSpacing(14);
    layout->addWidget(createText(title, "gallery_example_title", kTitleScale), 0, Qt::AlignLeft);
    layout->addWidget(example, 1);
    return stage;
}

QWidget* GalleryPage::createCode(const QString& snippet)
{
    auto* frame = new QFrame;
    frame->setObjectName(QStringLiteral("gallery_code"));
    auto* layout = new QHBoxLayout(frame);
    layout->setContentsMargins(kCodeMarginsPx);
    layout->setSpacing(10);
    auto* code = new CodeView(snippet);
    code->setObjectName(QStringLiteral("gallery_snippet"));
    layout->addWidget(code, 1);
    layout->addWidget(createCopyButton(snippet), 0, Qt::AlignTop);
    return frame;
}

void GalleryPage::prepareForPicture() {}

void GalleryPage::endPicture() {}

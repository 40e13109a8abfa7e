#include "pages/DemoWindows.h"

#include "WyWidgets/frame/WyDialogBar.h"
#include "WyWidgets/frame/WyWindowBar.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr QSize kWindowSizePx(520, 260);
constexpr int kMessageWidthPx = 250;

} // namespace

DemoWindow::DemoWindow(QWidget* parent) : FramedWindow(parent)
{
    fillBar();

    auto* body = new QLabel(tr("Drag me by the bar, double-click it,\npull at my borders."));
    body->setAlignment(Qt::AlignCenter);
    setCentralWidget(body);
    resize(kWindowSizePx);
}

void DemoWindow::fillBar()
{
    m_title = new QLabel;
    bar()->AddWidgetToLeft(m_title);
    addTool(new QPushButton(tr("Share")));
    addTool(new QPushButton(tr("Print")));
    addSystemButtons();
}

void DemoWindow::setTitle(const QString& title)
{
    setWindowTitle(title);
    m_title->setText(title);
}

DemoDialog::DemoDialog(QWidget* parent) : WyDialog(parent)
{
    auto* message = new QLabel(tr("Three documents have changes that you did not save yet. Keep them?"));
    message->setWordWrap(true);
    message->setContentsMargins(10, 6, 10, 12);
    message->setFixedWidth(kMessageWidthPx);

    auto* layout = new QVBoxLayout(createContent());
    layout->setContentsMargins(8, 6, 8, 12);
    layout->setSpacing(6);
    layout->addWidget(GetTitleBar());
    layout->addWidget(message);
    layout->addWidget(createAnswers());
    fillTitleBar();
    m_keep->setFocus();
}

void DemoDialog::fillTitleBar()
{
    auto* close = new QPushButton;
    close->setObjectName(QStringLiteral("dialog_close"));
    close->setFixedSize(28, 28);
    close->setToolTip(tr("Close"));
    close->setAccessibleName(tr("Close"));
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto* layout = static_cast<QBoxLayout*>(GetTitleBar()->layout());
    layout->addStretch();
    layout->addWidget(close);
}

QWidget* DemoDialog::createAnswers()
{
    auto* answers = new QWidget;
    auto* layout = new QHBoxLayout(answers);
    layout->setContentsMargins(10, 0, 10, 6);
    layout->addStretch();
    auto* discard = new QPushButton(tr("Discard"));
    connect(discard, &QPushButton::clicked, this, &QDialog::reject);
    layout->addWidget(discard);
    m_keep = new QPushButton(tr("Keep"));
    m_keep->setProperty("primary", true);
    m_keep->setDefault(true);
    connect(m_keep, &QPushButton::clicked, this, &QDialog::accept);
    layout->addWidget(m_keep);
    return answers;
}

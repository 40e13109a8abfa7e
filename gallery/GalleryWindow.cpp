#include "GalleryWindow.h"

#include "GalleryPage.h"
#include "Pages.h"

#include <QApplication>
#include <QFile>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QStatusBar>

namespace {

constexpr int kNavigationWidthPx = 220;
constexpr QSize kWindowSizePx(1240, 860);

} // namespace

GalleryWindow::GalleryWindow(QWidget* parent) : QMainWindow(parent)
{
    setWindowTitle(tr("WyWidgets gallery"));
    resize(kWindowSizePx);
    auto* central = new QWidget;
    central->setObjectName(QStringLiteral("gallery_central"));
    setCentralWidget(central);
    m_stack = new QStackedWidget;
    createNavigation();
    createThemeButton();
    openRow(0);
}

void GalleryWindow::createNavigation()
{
    auto* side = new QVBoxLayout;
    side->setContentsMargins(12, 12, 0, 12);
    m_search = new QLineEdit;
    m_search->setObjectName(QStringLiteral("gallery_search"));
    m_search->setPlaceholderText(tr("Search"));
    m_search->setAccessibleName(tr("Search the pages"));
    m_search->setFixedWidth(kNavigationWidthPx);
    m_navigation = new QListWidget;
    m_navigation->setObjectName(QStringLiteral("gallery_navigation"));
    m_navigation->setAccessibleName(tr("Pages"));
    m_navigation->setFixedWidth(kNavigationWidthPx);
    const QVector<PageEntry> pages = allPages();
    for (const PageEntry& page : pages) {
        m_navigation->addItem(page.name);
        m_stack->addWidget(new QWidget);
    }
    side->addWidget(m_search);
    side->addWidget(m_navigation);

    auto* row = new QHBoxLayout(centralWidget());
    row->setContentsMargins(0, 0, 0, 0);
    row->addLayout(side);
    row->addWidget(m_stack, 1);
    connect(m_search, &QLineEdit::textChanged, this, &GalleryWindow::filterNavigation);
    connect(m_navigation, &QListWidget::currentRowChanged, this, &GalleryWindow::openRow);
}

void GalleryWindow::createThemeButton()
{
    m_themeButton = new QPushButton;
    m_themeButton->setObjectName(QStringLiteral("gallery_theme_button"));
    connect(m_themeButton, &QPushButton::clicked, this, &GalleryWindow::toggleTheme);
    statusBar()->addPermanentWidget(m_themeButton);
}

bool GalleryWindow::openPage(const QString& name)
{
    for (int row = 0; row < m_navigation->count(); ++row) {
        if (m_navigation->item(row)->text().compare(name, Qt::CaseInsensitive) == 0) {
            openRow(row);
            return true;
        }
    }
    return false;
}

bool GalleryWindow::applyTheme(const QString& name)
{
    QFile file(QStringLiteral(":/themes/%1.qss").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    m_theme = name;
    qApp->setStyleSheet(QString::fromUtf8(file.readAll()));
    m_themeButton->setText(name == QLatin1String("dark") ? tr("Light theme") : tr("Dark theme"));
    return true;
}

GalleryPage* GalleryWindow::currentPage() const
{
    return qobject_cast<GalleryPage*>(m_stack->currentWidget());
}

void GalleryWindow::openRow(int row)
{
    if (row < 0)
        return;
    if (!qobject_cast<GalleryPage*>(m_stack->widget(row))) {
        QWidget* placeholder = m_stack->widget(row);
        m_stack->insertWidget(row, allPages().at(row).create());
        m_stack->removeWidget(placeholder);
        delete placeholder;
    }
    m_stack->setCurrentIndex(row);
    m_navigation->setCurrentRow(row);
}

void GalleryWindow::filterNavigation(const QString& words)
{
    for (int row = 0; row < m_navigation->count(); ++row) {
        QListWidgetItem* item = m_navigation->item(row);
        item->setHidden(!item->text().contains(words.trimmed(), Qt::CaseInsensitive));
    }
}

void GalleryWindow::toggleTheme()
{
    applyTheme(m_theme == QLatin1String("dark") ? QStringLiteral("light") : QStringLiteral("dark"));
}

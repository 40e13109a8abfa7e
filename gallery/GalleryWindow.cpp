#include "GalleryWindow.h"

#include "FlushLayout.h"
#include "GalleryPage.h"
#include "Pages.h"
#include "Theme.h"

#include "WyWidgets/frame/WyWidgetUtils.h"
#include "WyWidgets/frame/WyWindowBar.h"

#include <QAction>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStackedWidget>
#include <QStatusBar>

namespace {

constexpr int kNavigationWidthPx = 220;
constexpr int kSearchWidthPx = 280;
constexpr int kLogoSizePx = 22;
constexpr QSize kPageIconSizePx(20, 20);
constexpr QSize kToolButtonSizePx(32, 32);
constexpr QSize kWindowSizePx(1240, 860);
constexpr qreal kLargestShareOfScreen = 0.92;

} // namespace

GalleryWindow::GalleryWindow(QWidget* parent) : FramedWindow(parent)
{
    setObjectName(QStringLiteral("gallery_window"));
    setWindowTitle(tr("WyWidgets gallery"));
    setWindowIcon(Theme::icon(QStringLiteral("logo")));
    resize(kWindowSizePx.boundedTo(screen()->availableSize() * kLargestShareOfScreen));
    createBar();
    createNavigation();
    createStatus();
    openRow(0);
    m_navigation->setFocus();
}

void GalleryWindow::createBar()
{
    auto* logo = new QLabel;
    logo->setPixmap(windowIcon().pixmap(windowHandle(), QSize(kLogoSizePx, kLogoSizePx)));
    auto* title = new QLabel(windowTitle());
    title->setObjectName(QStringLiteral("gallery_title"));
    bar()->AddWidgetToLeft(logo);
    bar()->AddWidgetToLeft(title);
    createSearch();
    createThemeButton();
    addSystemButtons();
}

void GalleryWindow::createSearch()
{
    m_search = new QLineEdit;
    m_search->setObjectName(QStringLiteral("gallery_search"));
    m_search->setPlaceholderText(tr("Search pages and classes"));
    m_search->setAccessibleName(tr("Search pages and classes"));
    m_search->setClearButtonEnabled(true);
    m_search->setFixedWidth(kSearchWidthPx);
    m_search->setProperty("empty", true);
    m_search->installEventFilter(this);
    m_searchIcon = m_search->addAction(QIcon(), QLineEdit::LeadingPosition);
    addControl(m_search, 1, Qt::AlignCenter);
    connect(m_search, &QLineEdit::textChanged, this, &GalleryWindow::filterNavigation);

    auto* shortcut = new QShortcut(QKeySequence::Find, this);
    m_search->setToolTip(shortcut->key().toString(QKeySequence::NativeText));
    connect(shortcut, &QShortcut::activated, m_search,
            [this] { m_search->setFocus(Qt::ShortcutFocusReason); });
    connect(shortcut, &QShortcut::activated, m_search, &QLineEdit::selectAll);
}

void GalleryWindow::createThemeButton()
{
    m_themeButton = new QPushButton;
    m_themeButton->setObjectName(QStringLiteral("gallery_theme_button"));
    m_themeButton->setFixedSize(kToolButtonSizePx);
    connect(m_themeButton, &QPushButton::clicked, this, &GalleryWindow::toggleTheme);
    addTool(m_themeButton);
}

void GalleryWindow::createNavigation()
{
    auto* central = new QWidget;
    central->setObjectName(QStringLiteral("gallery_central"));
    setCentralWidget(central);
    m_stack = new QStackedWidget;
    m_nothingFound = new QLabel(tr("Nothing found"));
    m_nothingFound->setObjectName(QStringLiteral("gallery_nothing_found"));
    m_nothingFound->hide();
    m_navigation = new QListWidget;
    m_navigation->setObjectName(QStringLiteral("gallery_navigation"));
    m_navigation->setAccessibleName(tr("Pages"));
    m_navigation->setFixedWidth(kNavigationWidthPx);
    m_navigation->setIconSize(kPageIconSizePx);
    const QVector<PageEntry> pages = allPages();
    for (const PageEntry& page : pages) {
        m_navigation->addItem(page.name);
        m_stack->addWidget(new QWidget);
    }

    auto* side = new QVBoxLayout;
    side->setContentsMargins(12, 14, 12, 12);
    side->addWidget(m_nothingFound);
    side->addWidget(m_navigation);
    auto* row = flushLayout<QHBoxLayout>(central);
    row->setSpacing(0);
    row->addLayout(side);
    row->addWidget(m_stack, 1);
    connect(m_navigation, &QListWidget::currentRowChanged, this, &GalleryWindow::openRow);
}

void GalleryWindow::createStatus()
{
    auto* status = new QStatusBar;
    status->setObjectName(QStringLiteral("gallery_status"));
    status->setSizeGripEnabled(false);
    status->setContentsMargins(12, 0, 12, 0);
    const QString version = QCoreApplication::applicationVersion();
    status->addWidget(new QLabel(tr("WyWidgets %1").arg(version)));
    status->addWidget(new QLabel(tr("Qt %1").arg(QLatin1String(qVersion()))));
    status->addPermanentWidget(
        new QLabel(tr("%1, scale %2").arg(QGuiApplication::platformName()).arg(devicePixelRatioF())));
    setStatusBar(status);
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
    if (!Theme::apply(name))
        return false;
    showThemeIcons();
    return true;
}

GalleryPage* GalleryWindow::currentPage() const
{
    return qobject_cast<GalleryPage*>(m_stack->currentWidget());
}

bool GalleryWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_search || event->type() != QEvent::KeyPress)
        return FramedWindow::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Down:
        moveRow(1);
        return true;
    case Qt::Key_Up:
        moveRow(-1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        m_navigation->setFocus();
        return true;
    case Qt::Key_Escape:
        m_search->clear();
        return true;
    default:
        return false;
    }
}

void GalleryWindow::openRow(int row)
{
    if (row < 0)
        return;
    if (!qobject_cast<GalleryPage*>(m_stack->widget(row))) {
        QWidget* placeholder = m_stack->widget(row);
        GalleryPage* page = allPages().at(row).create();
        connect(page, &GalleryPage::pageRequested, this, &GalleryWindow::openPage);
        m_stack->insertWidget(row, page);
        m_stack->removeWidget(placeholder);
        delete placeholder;
    }
    m_stack->setCurrentIndex(row);
    m_navigation->setCurrentRow(row);
}

void GalleryWindow::filterNavigation(const QString& words)
{
    // Qt 5 gives the placeholder no colour of its own.
    WyWidgets::WyWidgetUtils::RefreshStyle(m_search, "empty", words.isEmpty());
    const QVector<PageEntry> pages = allPages();
    int firstFound = -1;
    for (int row = 0; row < m_navigation->count(); ++row) {
        const bool found = pages.at(row).matches(words);
        m_navigation->item(row)->setHidden(!found);
        if (found && firstFound < 0)
            firstFound = row;
    }
    m_nothingFound->setVisible(firstFound < 0);
    if (firstFound >= 0 && m_navigation->currentItem()->isHidden())
        openRow(firstFound);
}

/// Opens the next page (or the previous one) that the search has left in the list.
void GalleryWindow::moveRow(int step)
{
    int row = m_navigation->currentRow() + step;
    while (m_navigation->item(row) && m_navigation->item(row)->isHidden())
        row += step;
    if (m_navigation->item(row))
        openRow(row);
}

void GalleryWindow::showThemeIcons()
{
    const bool dark = Theme::current() == QLatin1String("dark");
    const QString purpose = dark ? tr("Switch to the light theme") : tr("Switch to the dark theme");
    m_themeButton->setIcon(Theme::icon(dark ? QStringLiteral("sun") : QStringLiteral("moon")));
    m_themeButton->setToolTip(purpose);
    m_themeButton->setAccessibleName(purpose);
    m_searchIcon->setIcon(Theme::icon(QStringLiteral("search")));
    const QVector<PageEntry> pages = allPages();
    for (int row = 0; row < pages.size(); ++row)
        m_navigation->item(row)->setIcon(Theme::icon(pages.at(row).icon));
}

void GalleryWindow::toggleTheme()
{
    applyTheme(Theme::current() == QLatin1String("dark") ? QStringLiteral("light") : QStringLiteral("dark"));
}

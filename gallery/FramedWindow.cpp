#include "FramedWindow.h"

#include "WyWidgets/frame/WyWindowBar.h"

#include <QEvent>
#include <QLayout>
#include <QPushButton>

namespace {

constexpr int kBarHeightPx = 48;
#ifndef Q_OS_MACOS
constexpr QMargins kBarMarginsPx(16, 0, 8, 0);
#endif

} // namespace

FramedWindow::FramedWindow(QWidget* parent) : WyMainWindow(parent), m_bar(new WyWidgets::WyWindowBar(this))
{
    m_bar->setFixedHeight(kBarHeightPx);
    setMenuWidget(m_bar);
    registTitleBar(m_bar);
    showWindowState();
}

WyWidgets::WyWindowBar* FramedWindow::bar() const
{
    return m_bar;
}

void FramedWindow::addControl(QWidget* widget, int stretch, Qt::Alignment alignment)
{
    m_bar->AddWidgetToLeft(widget, stretch, alignment);
    registHitTestVisible(widget, true);
}

void FramedWindow::addTool(QPushButton* button)
{
    m_bar->AddToolButton(button);
    registHitTestVisible(button, true);
}

void FramedWindow::addSystemButtons()
{
#ifdef Q_OS_MACOS
    setSystemButtonsVisible(true); // in the bar's left margin
#else
    m_bar->layout()->setContentsMargins(kBarMarginsPx);
    m_bar->AddSeparator();
    m_bar->InitSysButton();
    registMaxButton(m_bar->findChild<QPushButton*>(QStringLiteral("max_button")));
    for (const char* name : {"min_button", "max_button", "close_button"})
        registHitTestVisible(m_bar->findChild<QPushButton*>(QLatin1String(name)), true);
#endif
}

void FramedWindow::changeEvent(QEvent* event)
{
    WyMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        showWindowState();
}

/// The edge while the window has one, and the matching picture on the maximise button.
void FramedWindow::showWindowState()
{
    const bool fillsScreen = windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen);
    const int edge = fillsScreen ? 0 : 1;
    setContentsMargins(edge, edge, edge, edge);
    if (auto* button = m_bar->findChild<QPushButton*>(QStringLiteral("max_button")))
        button->setChecked(isMaximized());
}

#include "internal/SystemMenu.h"

#include "internal/WindowTraits.h"

namespace QWK {

void SystemMenu::open(QWidget* window, QPoint globalPos)
{
    auto* menu = new SystemMenu(window);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(globalPos);
}

SystemMenu::SystemMenu(QWidget* window) : QMenu(window)
{
    const bool isNormal = !window->isMaximized() && !window->isFullScreen();
    addAction(tr("&Restore"), window, &QWidget::showNormal)->setEnabled(!isNormal);
    addAction(tr("Mi&nimize"), window, &QWidget::showMinimized)->setEnabled(canMinimize(window));
    addAction(tr("Ma&ximize"), window, &QWidget::showMaximized)
        ->setEnabled(canMaximize(window) && !window->isMaximized());
    addSeparator();
    addAction(tr("&Close"), window, &QWidget::close);
}

} // namespace QWK

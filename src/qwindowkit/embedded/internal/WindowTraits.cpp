#include "internal/WindowTraits.h"

#include <QWidget>

namespace QWK {

bool hasFixedWidth(const QWidget* window)
{
    return window->minimumWidth() == window->maximumWidth();
}

bool hasFixedHeight(const QWidget* window)
{
    return window->minimumHeight() == window->maximumHeight();
}

bool hasFixedSize(const QWidget* window)
{
    return hasFixedWidth(window) && hasFixedHeight(window);
}

bool canMaximize(const QWidget* window)
{
    return window->windowFlags().testFlag(Qt::WindowMaximizeButtonHint) && !hasFixedSize(window);
}

bool canMinimize(const QWidget* window)
{
    return window->windowFlags().testFlag(Qt::WindowMinimizeButtonHint);
}

} // namespace QWK

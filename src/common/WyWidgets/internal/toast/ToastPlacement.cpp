#include "WyWidgets/internal/toast/ToastPlacement.h"

#include "WyWidgets/internal/arithmetic/Pixels.h"
#include "WyWidgets/wycontrol/WyToast.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace WyWidgets {

namespace {

/// Each half is rounded on its own: the result can be 1 px off half of the difference.
int centred(int length, int bodyLength)
{
    return length / 2 - bodyLength / 2;
}

} // namespace

QScreen* screenBesideParent(const QWidget* parent)
{
    QScreen* found = nullptr;
    if (parent) {
        const QList<QScreen*> screens = QGuiApplication::screens();
        for (QScreen* screen : screens) {
            if (!screen->geometry().intersects(parent->geometry()))
                continue;
            if (found)
                return QGuiApplication::primaryScreen();
            found = screen;
        }
    }
    return found ? found : QGuiApplication::primaryScreen();
}

QPoint anchoredPosition(ToastPosition position, const QRect& screen, const QSize& body, const QPoint& offset,
                        qint64 stacked)
{
    const Px left = Px(screen.x()) + offset.x();
    const Px middle = screen.x() + centred(screen.width(), body.width());
    const Px right = Px(screen.x()) + screen.width() - body.width() - offset.x();
    const Px top = Px(screen.y()) + offset.y() + stacked;
    const Px bottom = Px(screen.y()) + screen.height() - body.height() - offset.y() - stacked;
    switch (position) {
    case ToastPosition::BOTTOM_LEFT:
        return toPoint(left, bottom);
    case ToastPosition::BOTTOM_MIDDLE:
        return toPoint(middle, bottom);
    case ToastPosition::BOTTOM_RIGHT:
        return toPoint(right, bottom);
    case ToastPosition::TOP_LEFT:
        return toPoint(left, top);
    case ToastPosition::TOP_MIDDLE:
        return toPoint(middle, top);
    case ToastPosition::TOP_RIGHT:
        return toPoint(right, top);
    case ToastPosition::CENTER:
        return toPoint(middle, Px(screen.y()) + centred(screen.height(), body.height()) + stacked);
    }
    return {0, 0};
}

int stackingDirection(ToastPosition position)
{
    switch (position) {
    case ToastPosition::BOTTOM_LEFT:
    case ToastPosition::BOTTOM_MIDDLE:
    case ToastPosition::BOTTOM_RIGHT:
        return -1;
    case ToastPosition::TOP_LEFT:
    case ToastPosition::TOP_MIDDLE:
    case ToastPosition::TOP_RIGHT:
    case ToastPosition::CENTER:
        return 1;
    }
    return 0;
}

} // namespace WyWidgets

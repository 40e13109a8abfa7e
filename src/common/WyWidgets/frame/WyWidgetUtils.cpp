#include "WyWidgets/frame/WyWidgetUtils.h"

#include "WyWidgets/internal/arithmetic/Saturated.h"
#include "WyWidgets/internal/painting/PictureFile.h"
#include "WyWidgets/internal/text/LineMeter.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QStyle>
#include <QToolTip>

namespace WyWidgets {

namespace {

/// How far beyond the width the end of a word is looked for: about two letters.
constexpr int kWordMarginPx = 24;
constexpr QSize kCornerHandlePx(5, 5);
constexpr QSize kVerticalHandlePx(4, 21);
constexpr QSize kHorizontalHandlePx(24, 4);

/// Whole coordinates come back as they are; sums that no int holds stop at the nearest one that does.
QPoint truncated(const QPointF& point)
{
    return QPoint(saturated<int>(point.x()), saturated<int>(point.y()));
}

QPoint unscaledTopLeft(const QRect& geometry, double scale)
{
    return truncated(QPointF(geometry.topLeft()) / scale);
}

QScreen* screenAtIndex(int index)
{
    return QGuiApplication::screens().value(index);
}

// Tooltip lines. A line's beginnings are measured from its first two characters on, and the first beginning
// that is too wide breaks the line: at the last space that it holds or, without one after the first
// character, before its last character. Either way the character at the break is dropped.

bool isSpaceAt(QStringView line, int index)
{
    return line.at(index) == QLatin1Char(' ');
}

/// The next length to ask for after `length` characters have fitted. The lengths between need no question:
/// none of them is wider, and they hold no other space to break at.
int nextLength(QStringView line, int length, bool hasSpace, LineMeter& meter)
{
    // Without a space the first length that is too wide counts; with one, any length up to the next space.
    const int margin = hasSpace ? kWordMarginPx : 0;
    do
        ++length;
    while (length < line.size() && !isSpaceAt(line, length) && meter.hasSteadyStep(length) &&
           !meter.seemsToExceed(length, margin));
    return length;
}

/// The length of the first line of this text, -1 if all of it fits.
int cutOf(QStringView line, LineMeter& meter)
{
    const int size = int(line.size());
    if (size == 1)
        return meter.fits(1) ? -1 : 1;
    int space = isSpaceAt(line, 1) ? 1 : 0; // a space at the line's start is none to break at
    int fitting = 1;
    while (fitting < size) {
        const int length = nextLength(line, fitting, space > 0, meter);
        if (!meter.fits(length))
            return space > 0 ? space : meter.firstTooWide(fitting, length) - 1;
        fitting = length;
        if (fitting < size && isSpaceAt(line, fitting))
            space = fitting;
    }
    return -1;
}

QLabel* createHandle(QWidget* parent, QSize size)
{
    auto* handle = new QLabel(parent);
    handle->setObjectName(QStringLiteral("label_point"));
    handle->setFixedSize(size);
    return handle;
}

} // namespace

bool WyWidgetUtils::RegisterShortcuts(quint64, int, const QString&)
{
    return true;
}

double WyWidgetUtils::GetDpiScale()
{
    // The primary screen's scale serves every screen, also after screens have come and gone.
    static const double scale = [] {
        const QScreen* primary = QGuiApplication::primaryScreen();
        return primary ? primary->devicePixelRatio() : 1.0;
    }();
    return scale;
}

QRect WyWidgetUtils::ScaledRect(const QRect& rect, double scale)
{
    const QPoint topLeft = truncated(QPointF(rect.topLeft()) * scale);
    const QPointF size(saturated<int>(rect.width() * scale), saturated<int>(rect.height() * scale));
    return QRect(topLeft, truncated(topLeft + size - QPointF(1, 1)));
}

QRectF WyWidgetUtils::ScaledRectF(const QRectF& rect, double scale)
{
    return QRectF(rect.x() * scale, rect.y() * scale, rect.width() * scale, rect.height() * scale);
}

QRect WyWidgetUtils::GetScreenGeometry(int screenIndex, bool available)
{
    const QScreen* screen = screenAtIndex(screenIndex);
    if (!screen)
        return QRect();
    return available ? screen->availableGeometry() : screen->geometry();
}

QRect WyWidgetUtils::GetAllScreenGeometry(bool available)
{
    GetDpiScale(); // the scale is fixed here, though the union is not scaled
    QRect all;
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (const QScreen* screen : screens)
        all |= available ? screen->availableGeometry() : screen->geometry();
    return all;
}

QPixmap WyWidgetUtils::GrabScreenPixMap(int screenIndex)
{
    QScreen* screen = screenAtIndex(screenIndex);
    if (!screen)
        return QPixmap();
    const QRect geometry = screen->geometry();
    QPixmap pixmap(geometry.size() * GetDpiScale()); // QSize rounds to the nearest integers
    if (pixmap.isNull())
        return pixmap;
    pixmap.fill(Qt::transparent);
    const QPixmap grab =
        screen->grabWindow(0, geometry.x(), geometry.y(), geometry.width(), geometry.height());
    QPainter painter(&pixmap);
    painter.drawPixmap(QRectF(pixmap.rect()), grab, QRectF());
    painter.end(); // a pixmap that is being painted on would be returned as a copy of all its pixels
    return pixmap;
}

QPixmap WyWidgetUtils::GrabAllScreenPixMap()
{
    const double scale = GetDpiScale();
    const QList<QScreen*> screens = QGuiApplication::screens();
    // Sizes are scaled, positions are not: the mapping functions count on it.
    QRect canvas;
    for (const QScreen* screen : screens) {
        const QRect geometry = screen->geometry();
        canvas |= QRect(geometry.topLeft(), QSize(saturated<int>(geometry.width() * scale),
                                                  saturated<int>(geometry.height() * scale)));
    }
    QPixmap pixmap(canvas.size());
    if (pixmap.isNull())
        return pixmap;
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    for (QScreen* screen : screens) {
        const QPixmap grab = screen->grabWindow(0, 0, 0, -1, -1);
        const QPoint offset = screen->geometry().topLeft() - canvas.topLeft();
        painter.drawPixmap(QRectF(offset, grab.size()), grab, QRectF());
    }
    painter.end();
    return pixmap;
}

QPoint WyWidgetUtils::MapToGlobal(const QPoint& point, bool& found)
{
    found = false;
    const double scale = GetDpiScale();
    const QPoint shifted = truncated(QPointF(point) + GetAllScreenGeometry(false).topLeft());
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        const QRect geometry = screen->geometry();
        const QPoint topLeft = unscaledTopLeft(geometry, scale);
        if (QRect(topLeft, geometry.size()).contains(shifted)) {
            found = true;
            return truncated(QPointF(shifted) + geometry.topLeft() - topLeft);
        }
    }
    return shifted;
}

QPoint WyWidgetUtils::MapToParent(const QPoint& point)
{
    const double scale = GetDpiScale();
    const QPointF shifted = QPointF(point) - GetAllScreenGeometry(false).topLeft();
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        const QRect geometry = screen->geometry();
        if (geometry.contains(point))
            return truncated(shifted - geometry.topLeft() + unscaledTopLeft(geometry, scale));
    }
    return truncated(shifted);
}

void WyWidgetUtils::RefreshStyle(QWidget* widget, const char* name, QVariant value)
{
    if (!widget || !name)
        return;
    const QPointer<QWidget> guard(widget);
    widget->setProperty(name, value);
    if (!guard)
        return;
    QApplication::style()->unpolish(widget);
    QApplication::style()->polish(widget);
    widget->update();
}

QString WyWidgetUtils::ToolTipWrap(QString text, int width)
{
    LineMeter meter(QToolTip::font(), width);
    QString result;
    result.reserve(text.size());
    int from = 0;
    while (from < text.size()) {
        const QStringView line = QStringView(text).mid(from);
        const int cut = meter.decideLine(line, [&] { return cutOf(line, meter); });
        if (cut < 0)
            break;
        result += text.midRef(from, cut);
        result += QLatin1Char('\n');
        from = qMin(from + cut + 1, text.size());
        // A rest no longer than the line before it is not wrapped again.
        if (cut >= text.size() - from)
            break;
    }
    return result + text.midRef(from);
}

void updateStyle(QLabel* label, const QString& normalImage, const QString& disabledImage)
{
    if (!label)
        return;
    const auto harmless = [](const QString& image) {
        return isHarmfulPicture(image) ? QString() : image;
    };
    // Both at once: a "%2" within the first path stays what it is.
    label->setStyleSheet(
        QStringLiteral("QLabel{border-image: url(%1);}QLabel:disabled{border-image: url(%2);}")
            .arg(harmless(normalImage), harmless(disabledImage)));
}

QLabel* CreatePoint(QWidget* parent)
{
    return createHandle(parent, kCornerHandlePx);
}

QLabel* CreateVPoint(QWidget* parent)
{
    return createHandle(parent, kVerticalHandlePx);
}

QLabel* CreateHPoint(QWidget* parent)
{
    return createHandle(parent, kHorizontalHandlePx);
}

} // namespace WyWidgets

#pragma once

#include "WyWidgets/wycontrol/WyToast.h"

#include "wycontrol/ToastSupport.h"

#include <QDebug>
#include <QLabel>
#include <QtMath>

/// The rules of a toast's layout told step by step, as a second opinion to the class.
namespace ToastGeometry {

using WyTest::ToastParts;
using WyWidgets::ToastButtonAlignment;
using WyWidgets::WyToast;

/// What a toast is laid out from.
struct Settings
{
    QString title;
    QString text;
    QFont titleFont{QStringLiteral("Arial"), 9, QFont::Bold};
    QFont textFont{QStringLiteral("Arial"), 9};
    bool showIcon = false;
    QSize iconSize{18, 18};
    bool showSeparator = true;
    int separatorWidth = 2;
    bool showCloseButton = true;
    QSize closeButtonSize{24, 24};
    ToastButtonAlignment alignment = ToastButtonAlignment::TOP;
    bool showBar = true;
    int spacing = 8;
    QMargins m{20, 18, 10, 18};
    QMargins im{0, 0, 15, 0};
    QMargins ism{0, 0, 15, 0};
    QMargins tsm{0, 0, 15, 0};
    QMargins cbm{0, -8, 0, -8};
    QSize minimum{0, 0};
    QSize maximum{QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};

    WyToast* createToast(QWidget* parent) const
    {
        auto* toast = new WyToast(parent);
        toast->setTitle(title);
        toast->setText(text);
        toast->setTitleFont(titleFont);
        toast->setTextFont(textFont);
        toast->setShowIcon(showIcon);
        toast->setIconSize(iconSize);
        toast->setShowIconSeparator(showSeparator);
        toast->setIconSeparatorWidth(separatorWidth);
        toast->setShowCloseButton(showCloseButton);
        toast->setCloseButtonSize(closeButtonSize);
        toast->setCloseButtonAlignment(alignment);
        toast->setShowDurationBar(showBar);
        toast->setTextSectionSpacing(spacing);
        toast->setMargins(m);
        toast->setIconMargins(im);
        toast->setIconSectionMargins(ism);
        toast->setTextSectionMargins(tsm);
        toast->setCloseButtonMargins(cbm);
        toast->setMinimumSize(minimum);
        toast->setMaximumSize(maximum);
        return toast;
    }
};

/// What comes out: the places of all parts, those of hidden ones left out.
struct Places
{
    QSize window;
    QRect body;
    QVector<QRect> layers;
    QRect title;
    QRect text;
    QRect icon;
    QRect separator;
    QRect closeButton;
    QRect bar;
    int barWidth = 0;
    int chunkWidth = 0;

    QStringList lines() const
    {
        QStringList result;
        const auto add = [&result](const char* name, const auto& value) {
            QString line;
            QDebug(&line).noquote().nospace() << name << ' ' << value;
            result += line;
        };
        add("window", window);
        add("body", body);
        add("layers", layers);
        add("title", title);
        add("text", text);
        add("icon", icon);
        add("separator", separator);
        add("close button", closeButton);
        add("bar", bar);
        add("bar width", barWidth);
        add("chunk width", chunkWidth);
        return result;
    }
};

inline QSize wrappedSize(const QFontMetrics& metrics, const QString& text, int width)
{
    return metrics.boundingRect(QRect(0, 0, width, 0), Qt::TextWordWrap, text).size();
}

/// The height that a wrapping label of this minimum width wants.
inline int labelHeight(const QFont& font, const QString& text, int width)
{
    QLabel label(text);
    label.setFont(font);
    label.setMinimumWidth(width);
    label.setWordWrap(true);
    return label.sizeHint().height();
}

/// The layout once more, step by step and with every width tried.
class Model
{
public:
    explicit Model(const Settings& settings) : s(settings) {}

    int widthsTried = 0;
    bool triedTooLow = false;

    Places places()
    {
        const QRect titleRect = titleMetrics.boundingRect(s.title);
        const QRect textRect = textMetrics.boundingRect(s.text);
        titleW = titleRect.width() + 1;
        titleH = titleRect.height();
        textW = textRect.width() + 1;
        textH = textRect.height();
        spacing = !s.title.isEmpty() && !s.text.isEmpty() ? s.spacing : 0;
        barH = s.showBar ? 4 : 0;
        separatorW = s.showSeparator ? s.separatorWidth : 0;
        if (s.showIcon) {
            iconSecW =
                s.ism.left() + s.im.left() + s.iconSize.width() + s.im.right() + separatorW + s.ism.right();
            iconSecH = s.ism.top() + s.im.top() + s.iconSize.height() + s.im.bottom() + s.ism.bottom();
        }
        textSecH = titleH + spacing + textH + s.tsm.top() + s.tsm.bottom();
        cbW = s.showCloseButton ? s.closeButtonSize.width() : 0;
        cbH = s.showCloseButton ? s.closeButtonSize.height() : 0;
        cbLeft = s.showCloseButton ? s.cbm.left() : 0;
        cbRight = s.showCloseButton ? s.cbm.right() : 0;
        closeSecH = s.cbm.top() + cbH + s.cbm.bottom();
        width = fullWidth(qMax(titleW, textW));
        height = fullHeight(textSecH);
        narrow();
        heighten();
        width = qMax(width, s.minimum.width());
        if (height > s.maximum.height()) {
            overflow = (height - s.maximum.height()) / 2;
            height = s.maximum.height();
        }
        return result();
    }

private:
    int fullWidth(int texts) const
    {
        return iconSecW + cbW + cbLeft + cbRight + texts + s.m.left() + s.tsm.left() + s.tsm.right() +
               s.m.right();
    }
    int fullHeight(int textSec) const
    {
        return qMax(qMax(textSec, iconSecH), closeSecH) + s.m.top() + s.m.bottom();
    }

    void narrow()
    {
        if (width <= s.maximum.width())
            return;
        const int a = s.maximum.width() - width + qMax(titleW, textW);
        if (a > 0)
            titleW = a;
        const int b = s.maximum.width() - width + qMax(textW, titleW);
        if (b >= 1)
            textW = b;
        if (!s.title.isEmpty())
            titleH = labelHeight(s.titleFont, s.title, titleW);
        if (!s.text.isEmpty())
            textH = labelHeight(s.textFont, s.text, textW);
        width = s.maximum.width();
        textSecH = titleH + spacing + textH + s.tsm.top() + s.tsm.bottom();
        height = fullHeight(textSecH);
    }

    void heighten()
    {
        if (height + barH >= s.minimum.height()) {
            height += barH;
            return;
        }
        const int w =
            qMax(wrappedSize(titleMetrics, s.title, 0).width(), wrappedSize(textMetrics, s.text, 0).width());
        QSize title = wrappedSize(titleMetrics, s.title, w);
        QSize text = wrappedSize(textMetrics, s.text, w);
        titleW = title.width();
        textW = text.width();
        if (!s.title.isEmpty())
            titleH = title.height();
        if (!s.text.isEmpty())
            textH = text.height();
        textSecH = titleH + spacing + textH + s.tsm.top() + s.tsm.bottom();
        height = fullHeight(textSecH) + barH;
        for (int c = w; c <= width; ++c) {
            ++widthsTried;
            title = wrappedSize(titleMetrics, s.title, c);
            text = wrappedSize(textMetrics, s.text, c);
            const int newTitleH = s.title.isEmpty() ? 0 : title.height();
            const int newTextH = s.text.isEmpty() ? 0 : text.height();
            const int newTextSecH = newTitleH + spacing + newTextH + s.tsm.top() + s.tsm.bottom();
            const int newHeight = fullHeight(newTextSecH) + barH;
            if (newHeight < s.minimum.height()) {
                triedTooLow = true;
                break;
            }
            titleW = title.width();
            textW = text.width();
            titleH = newTitleH;
            textH = newTextH;
            textSecH = newTextSecH;
            height = newHeight;
        }
        width = fullWidth(qMax(titleW, textW));
        if (height < s.minimum.height()) {
            centre = (s.minimum.height() - height) / 2;
            height = s.minimum.height();
        }
    }

    Places result() const
    {
        Places p;
        p.window = QSize(width + 10, height + 10);
        p.body = QRect(5, 5, width, height);
        for (int k = 1; k <= 5; ++k)
            p.layers += QRect(k - 1, k - 1, width + 12 - 2 * k, height + 12 - 2 * k);
        const int secH = qMax(qMax(iconSecH, textSecH), closeSecH);
        int textX = s.m.left() + s.tsm.left();
        if (s.showIcon) {
            p.icon = QRect(QPoint(s.ism.left() + s.m.left() + s.im.left(),
                                  (secH - iconSecH) / 2 + s.ism.top() + s.m.top() + s.im.top() - overflow),
                           s.iconSize);
            p.separator = QRect(s.m.left() + s.ism.left() + s.im.left() + s.iconSize.width() + s.im.right(),
                                s.ism.top() + s.m.top() + centre - overflow, separatorW, qMax(0, textSecH));
            textX = s.m.left() + s.ism.left() + s.im.left() + s.iconSize.width() + s.im.right() + separatorW +
                    s.ism.right() + s.tsm.left();
        }
        const int vOff = (secH - textSecH) / 2;
        int titleY = s.tsm.top() + s.m.top() + vOff + centre - overflow;
        int textY = spacing + titleH + s.m.top() + s.tsm.top() + vOff + centre - overflow;
        if (s.title.isEmpty() && !s.text.isEmpty())
            textY = (height - (textH + barH)) / 2;
        if (s.text.isEmpty() && !s.title.isEmpty())
            titleY = (height - (titleH + barH)) / 2;
        const int labelW = qMax(titleW, textW);
        p.title = QRect(textX, titleY, labelW, titleH);
        p.text = QRect(textX, textY, labelW, textH);
        if (s.showCloseButton) {
            int y = 0;
            int x = width - (cbRight + cbW + s.m.right());
            if (s.alignment == ToastButtonAlignment::TOP)
                y = s.cbm.top() + s.m.top();
            else if (s.alignment == ToastButtonAlignment::MIDDLE)
                y = (height - (cbH + barH)) / 2;
            else if (s.alignment == ToastButtonAlignment::BOTTOM)
                y = height - (cbH + barH + s.cbm.bottom() + s.m.bottom());
            else
                x = 0;
            p.closeButton = QRect(QPoint(x, y), s.closeButtonSize);
        }
        if (s.showBar) {
            p.bar = QRect(0, height - 4, width, 4);
            p.barWidth = width;
            p.chunkWidth = width;
        }
        return p;
    }

    const Settings s;
    const QFontMetrics titleMetrics{s.titleFont};
    const QFontMetrics textMetrics{s.textFont};
    int titleW = 0, titleH = 0, textW = 0, textH = 0;
    int spacing = 0, barH = 0, separatorW = 0;
    int iconSecW = 0, iconSecH = 0, textSecH = 0, closeSecH = 0;
    int cbW = 0, cbH = 0, cbLeft = 0, cbRight = 0;
    int width = 0, height = 0, centre = 0, overflow = 0;
};

inline Places placesOf(const WyToast* toast)
{
    const ToastParts parts(toast);
    Places p;
    p.window = toast->size();
    p.body = parts.body->geometry();
    for (const QWidget* layer : parts.layers)
        p.layers += layer->geometry();
    p.title = parts.title->geometry();
    p.text = parts.text->geometry();
    if (!parts.icon->isHidden())
        p.icon = parts.icon->geometry();
    if (!parts.separator->isHidden())
        p.separator = parts.separator->geometry();
    if (!parts.closeButton->isHidden())
        p.closeButton = parts.closeButton->geometry();
    if (!parts.barContainer->isHidden()) {
        p.bar = parts.barContainer->geometry();
        p.barWidth = parts.bar->width();
        p.chunkWidth = parts.chunk->width();
    }
    return p;
}

inline Places shownPlaces(const Settings& settings)
{
    // Laid out as ever, but the platform has nothing to do for each of thousands of toasts.
    QWidget parent;
    WyToast* toast = settings.createToast(&parent);
    toast->setAttribute(Qt::WA_DontShowOnScreen);
    toast->show();
    const Places places = placesOf(toast);
    delete toast;
    return places;
}

} // namespace ToastGeometry

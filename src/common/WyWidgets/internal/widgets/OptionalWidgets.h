#pragma once

#include <QWidget>

namespace WyWidgets {

// For child widgets that the host may have deleted: these do nothing with a null widget. Negative lengths,
// which Qt warns about, count as 0.

inline void setStyleSheetOf(QWidget* widget, const QString& styleSheet)
{
    if (widget)
        widget->setStyleSheet(styleSheet);
}

inline void setFixedSizeOf(QWidget* widget, const QSize& size)
{
    if (widget)
        widget->setFixedSize(size.expandedTo(QSize(0, 0)));
}

inline void setFixedWidthOf(QWidget* widget, int width)
{
    if (widget)
        widget->setFixedWidth(qMax(0, width));
}

inline void setFixedHeightOf(QWidget* widget, int height)
{
    if (widget)
        widget->setFixedHeight(qMax(0, height));
}

inline void moveTo(QWidget* widget, const QPoint& pos)
{
    if (widget)
        widget->move(pos);
}

inline void hideIfAny(QWidget* widget)
{
    if (widget)
        widget->hide();
}

inline QSize sizeOf(const QWidget* widget)
{
    return widget ? widget->size() : QSize(0, 0);
}

} // namespace WyWidgets

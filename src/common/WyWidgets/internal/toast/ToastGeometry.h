#pragma once

#include <QMargins>
#include <QRect>
#include <QSize>

#include <functional>
#include <optional>

namespace WyWidgets {

class ToastText;
enum class ToastButtonAlignment;

/// What the sizes and places inside a toast follow from.
struct ToastMeasures
{
    QMargins margins;
    QMargins iconMargins;
    QMargins iconSectionMargins;
    QMargins textSectionMargins;
    QMargins closeButtonMargins;
    int textSectionSpacing = 0;
    bool showIcon = false;
    QSize iconSize;
    int separatorWidth = 0;
    bool showCloseButton = false;
    QSize closeButtonSize;
    ToastButtonAlignment closeButtonAlignment{};
    /// 0 without duration bar.
    int durationBarHeight = 0;
    QSize minimumSize;
    QSize maximumSize;
    /// The height of the title's and the text's label at a minimum width, wrapped.
    std::function<int(int)> titleHeightAt;
    std::function<int(int)> textHeightAt;
};

/// Where everything is, relative to the body.
struct ToastGeometry
{
    QSize body;
    bool wrapsTexts = false;
    QRect title;
    QRect text;
    QPoint icon;
    QPoint separator;
    int separatorHeight = 0;
    /// Nothing for an unknown alignment: the button stays where it is.
    std::optional<QPoint> closeButton;
};

ToastGeometry layOutToast(const ToastMeasures& measures, const ToastText& title, const ToastText& text);

} // namespace WyWidgets

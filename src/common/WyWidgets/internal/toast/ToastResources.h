#pragma once

#include <QIcon>
#include <QPixmap>
#include <QString>

namespace WyWidgets::ToastResources {

// Files are read and decoded once and again when they have changed; recoloured icons are kept, too.

/// The text of the style sheet file, up to the first NUL; empty if it cannot be read, is no regular file or
/// has more than 16 MiB.
QString styleSheet(const QString& path);
/// Null if it cannot be read, is no regular file or has more than 16 million pixels.
QPixmap picture(const QString& path);

/// An icon of this picture.
QIcon plainIcon(const QPixmap& picture);
/// The icon's picture at this size as a silhouette in one colour, as dense as the densest screen.
QIcon recoloredIcon(const QIcon& icon, const QSize& size, const QColor& color);

} // namespace WyWidgets::ToastResources

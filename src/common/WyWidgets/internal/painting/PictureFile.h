#pragma once

#include <QPixmap>
#include <QString>

namespace WyWidgets {

/// The picture in the file; null if it cannot be read or claims more than 16 million pixels.
QPixmap readPicture(const QString& path);

/// Whether a style sheet had better not name the picture, as Qt would read it whatever it is: a pipe or
/// device, which may never end, or more than 16 million pixels.
bool isHarmfulPicture(const QString& path);

} // namespace WyWidgets

#pragma once

#include "WyWidgets/WyExport.h"

#include <QLabel>
#include <QPointer>

class QTimer;

namespace WyWidgets {

/// A label that plays a numbered sequence of images, about twelve a second.
///
/// The images are "loading_01.png", "loading_02.png" and so on, in a folder or resource folder of the host's.
/// Each becomes the label's border image, scaled to its size, by way of its style sheet; the label takes no
/// other style sheet of its own while it plays. A pipe, a device or more than 16 million pixels in place of
/// an image are passed over. Its owner deletes it.
class WYWIDGETS_EXPORT WyGifLabel : public QLabel
{
    Q_OBJECT
    /// The folder of the images, see SetGif().
    Q_PROPERTY(QString gifPath MEMBER m_gifPath)
    /// The number of images, 12 at first.
    Q_PROPERTY(int gifStep MEMBER m_gifStep)

public:
    /// A label that does not play yet.
    explicit WyGifLabel(QWidget* parent = nullptr);
    ~WyGifLabel() override;

    /// The folder of the images with its trailing separator (empty: relative names) and their number, 12 at
    /// first. Takes effect with the next frame. The folder's name goes into the style sheet as it is: quotes,
    /// "%1", "#" and letters beyond ASCII are not understood there.
    void SetGif(const QString& path, int step);
    /// Plays from the first image on, also when it plays already. The first image shows after 84 ms.
    void start();
    /// The last image stays.
    void stop();

public Q_SLOTS:
    /// Shows the next frame.
    void slotTimeOut();

private:
    QString m_gifPath;
    int m_gifStep = 12;
    int m_frame = 1;
    QPointer<QTimer> m_timer;
};

} // namespace WyWidgets

#pragma once

#include <QMenu>

namespace QWK {

/// The menu that window managers open on a frame: restore, minimise, maximise, close.
class SystemMenu : public QMenu
{
    Q_OBJECT

public:
    /// Opens a menu for the window at the global position; it deletes itself when it is closed.
    static void open(QWidget* window, QPoint globalPos);

private:
    explicit SystemMenu(QWidget* window);
};

} // namespace QWK

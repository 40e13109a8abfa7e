#pragma once

#include <QObject>
#include <QPointer>
#include <QWindow>

namespace WyWidgets {

/// Has the window system move or resize a window with the left mouse button from the first move on.
///
/// A click without a move thus stays an ordinary click: once the window system has taken over, Qt sees no
/// release. The drag belongs to the window and deletes itself when it has begun or the button is up; deleting
/// it earlier calls it off.
class WindowDrag : public QObject
{
    Q_OBJECT

public:
    /// Call it while the button is pressed; a drag that is prepared already is replaced. Null without button
    /// and for a null or hidden window. Without edges the drag moves the window.
    static WindowDrag* prepare(QWindow* window, Qt::Edges edges = {});

    ~WindowDrag() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    WindowDrag(QWindow* window, Qt::Edges edges);

    void begin();
    void end();
    void releaseMouse();

    QPointer<QWindow> m_window;
    Qt::Edges m_edges;
    bool m_grabsMouse = false;
};

} // namespace WyWidgets

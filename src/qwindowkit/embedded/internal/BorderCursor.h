#pragma once

#include <QCursor>
#include <QObject>
#include <QPointer>
#include <QWindow>

class QMouseEvent;

namespace QWK {

/// Gives a native window the resize pointer while the mouse is over the borders.
///
/// To the widgets below, the pointer leaves the window at the border and enters it on the inside: none of
/// them stays highlighted, and each gets its own pointer back.
class BorderCursor : public QObject
{
public:
    ~BorderCursor() override;

    /// Each takes an event of the window with the edges at its position, none for the inside, and returns
    /// true if the event is not for the widgets.
    bool enter(QWindow* window, Qt::Edges edges);
    bool hover(QWindow* window, Qt::Edges edges, const QMouseEvent* event);
    bool leave();

    /// Gives the window its own pointer back.
    void restore();

private:
    void show(QWindow* window, Qt::Edges edges);

    QPointer<QWindow> m_window;
    QCursor m_own;
    QCursor m_shown;
};

} // namespace QWK

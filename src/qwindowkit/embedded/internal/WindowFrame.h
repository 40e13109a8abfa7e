#pragma once

#include "internal/BorderCursor.h"
#include "internal/FrameMouse.h"

#include <QObject>
#include <QPointer>

class QMouseEvent;
class QWidget;
class QWindow;

namespace QWK {

class TitleBarArea;

/// Takes the native frame away from a top-level widget and does the frame's work with the mouse.
///
/// It watches the widget for new native windows, and each native window and its child windows for mouse
/// events. An event that it handles goes no further.
class WindowFrame : public QObject
{
    Q_OBJECT

public:
    WindowFrame(QWidget* window, const TitleBarArea& titleBarArea);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void systemMenuRequested(const QPoint& globalPos);

private:
    void followNativeWindow();
    void watch(QWindow* native);
    bool isWatched(const QWindow* native) const;
    bool filterNativeEvent(QWindow* native, QEvent* event);
    bool filterMouseEvent(QWindow* native, QMouseEvent* event);

    QPointer<QWidget> m_window;
    QPointer<QWindow> m_native;
    FrameMouse m_mouse;
    BorderCursor m_borderCursor;
};

} // namespace QWK

#pragma once

#include <QObject>

namespace WyWidgets {

class WyToast;

/// What befalls the window of a toast. Escape fades it out. When it has been closed or hidden by other means
/// than its own hide(), it gives its place on the screen away; such a close is not held up by a fade, because
/// it may come from an application that closes all its windows to quit. While it is minimised, its duration
/// bar rests: nobody sees it, and its ticks are many.
class ToastWindowFilter : public QObject
{
public:
    explicit ToastWindowFilter(WyToast* toast);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void leaveScreenUnlessVisible();

    WyToast* m_toast;
};

} // namespace WyWidgets

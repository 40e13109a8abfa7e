#pragma once

#include <QObject>

namespace WyWidgets {

class WyToast;

/// Ends a toast in the ways that do not pass its own hide(). Escape fades it out. When it has been closed or
/// hidden by other means, it gives its place on the screen away; such a close is not held up by a fade,
/// because it may come from an application that closes all its windows to quit.
class ToastEndFilter : public QObject
{
public:
    explicit ToastEndFilter(WyToast* toast);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void leaveScreenUnlessVisible();

    WyToast* m_toast;
};

} // namespace WyWidgets

#pragma once

#include "WyWidgets/WyExport.h"

#include <QPointer>
#include <QWidget>

class QTimer;

namespace WyWidgets {

/// A translucent floating panel that reports its closing, as a popup or as a tool-tip window.
///
/// A popup closes on a click outside; a tool-tip window closes 200 ms after the pointer has left it, unless
/// the pointer comes back, and when it is deactivated. Closing only hides the window: its owner shows it
/// again or deletes it, also in a slot of SignalPopupClose(). The window paints nothing: style its panel,
/// "widget_content", which a derived class or a look-up by that name fills.
class WYWIDGETS_EXPORT WyPopupWidget : public QWidget
{
    Q_OBJECT

public:
    /// A hidden popup with its first, empty panel.
    explicit WyPopupWidget(QWidget* parent = nullptr);

    /// Adds one more panel named "widget_content" and returns it; the constructor has added the first.
    QWidget* CreateContent();
    /// True, the default, makes a popup window, false a tool-tip window. Replaces all window flags, so a
    /// visible window hides until it is shown again.
    void setPopup(bool popup);
    /// Closes a tool-tip window after that many milliseconds. A running timer keeps its time; a negative time
    /// and a popup window are left alone.
    void StartTimer(int msec);
    /// Cancels the closing that StartTimer() or a leaving pointer has announced.
    void StopTimer();

Q_SIGNALS:
    /// Emitted after each close request, once the window is hidden: at once, or from the event loop if Qt has
    /// deactivated the window.
    void SignalPopupClose();

protected:
    bool event(QEvent* e) override;
    void enterEvent(QEvent* e) override;
    void leaveEvent(QEvent* e) override;
    void closeEvent(QCloseEvent* e) override;

    /// The first panel; null once the host has deleted it.
    QPointer<QWidget> m_contentWidget;

private:
    bool m_hideOnClose = true;
    QPointer<QTimer> m_timer;
    bool m_popup = true;
    bool m_isQtDeactivating = false;
};

} // namespace WyWidgets

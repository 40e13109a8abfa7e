#pragma once

#include "WyWidgets/WyExport.h"

#include <QPointer>
#include <QWidget>

class QLabel;
class QPushButton;
class QTimer;

namespace WyWidgets {

/// A notice bar with a text and two link-like buttons. It fades in, waits while the pointer rests on it, and
/// deletes itself after a while or after a click on a link.
///
/// Never keep a plain pointer to it across the event loop. It is almost invisible until StartShowAnimation().
/// Style sheets reach its text as "label_text" and both links as "button_link_underline".
class WYWIDGETS_EXPORT WyTipWidget : public QWidget
{
    Q_OBJECT

public:
    /// A tip without text; both links show without text.
    explicit WyTipWidget(QWidget* parent = nullptr);
    ~WyTipWidget() override;

    /// Plain or rich text.
    void SetText(const QString& text);
    /// An empty text hides its link; a text does not show a hidden one again.
    void SetLinkText(const QString& left, const QString& right);
    /// Fades in within half a second and starts the timer with 3500 ms.
    void StartShowAnimation();
    /// Deletes the tip in so many ms. A running timer goes on as it is; negative times start none.
    void StartTimer(int msec);
    /// Cancels the deletion that StartTimer(), StartShowAnimation() or a leaving pointer has announced.
    void StopTimer();

Q_SIGNALS:
    /// The left link was clicked; the tip deletes itself afterwards. A slot may delete it at once.
    void SignalClickedLeftLink();
    /// The right link was clicked, likewise.
    void SignalClickedRightLink();

protected:
    // The pointer keeps the tip alive.
    void enterEvent(QEvent* event) override;
    // Deletes the tip two seconds later.
    void leaveEvent(QEvent* event) override;

private:
    void createText();
    QPushButton* createLink(const char* clickedSignal);

    QPointer<QLabel> m_textLabel;
    QPointer<QPushButton> m_leftLinkButton;
    QPointer<QPushButton> m_rightLinkButton;
    QPointer<QTimer> m_timer;
};

} // namespace WyWidgets

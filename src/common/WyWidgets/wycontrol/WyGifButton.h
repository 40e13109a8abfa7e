#pragma once

#include "WyWidgets/WyExport.h"

#include <QPointer>
#include <QPushButton>

class QLabel;

namespace WyWidgets {

class WyWaitingSpinnerWidget;

/// A push button that shows a text and a small spinner instead of its own text while it is busy.
///
/// The busy text is a label named "label_text"; the spinner beside it is white, so give the button a strong
/// background, also for ":disabled", as it is disabled while busy. Its owner deletes it.
class WYWIDGETS_EXPORT WyGifButton : public QPushButton
{
    Q_OBJECT
    /// Kept for the host; the button itself does not use it.
    Q_PROPERTY(QString gifPath MEMBER m_gifPath)
    /// Kept for the host; the button itself does not use it.
    Q_PROPERTY(int gifStep MEMBER m_gifStep)

public:
    /// A resting button without texts.
    explicit WyGifButton(QWidget* parent = nullptr);

    /// The resting text, shown at once, and the busy text, which the next StartAnimation() shows. Without a
    /// busy text the resting text stands beside the spinner.
    void SetButtonText(const QString& text, const QString& loadingText);
    /// Disables the button and shows busy text and spinner.
    void StartAnimation();
    /// Enables the button and shows the resting text.
    void StopAnimation();
    /// Builds the view; the constructor has done so. Called again, it replaces only a layout that the host
    /// has deleted, with what is missing in it.
    void InitView();

    /// A busy button has room for its resting text and for busy text and spinner.
    QSize sizeHint() const override;

private:
    WyWaitingSpinnerWidget* createSpinner();
    QLabel* createTextLabel();

    QPointer<QLabel> m_textLabel;
    QPointer<WyWaitingSpinnerWidget> m_spinner;
    QString m_text;
    QString m_loadingText;
    QString m_gifPath;
    int m_gifStep = 0;
    bool m_isBusy = false;
};

} // namespace WyWidgets

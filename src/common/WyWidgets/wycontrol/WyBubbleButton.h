#pragma once

#include "WyWidgets/WyExport.h"

#include <QPointer>
#include <QPushButton>

namespace WyWidgets {

class WyBubbleTip;

/// A push button that shows a text bubble while the pointer is over it.
///
/// The bubble belongs to the window that the button was in at the first SetBubbleTip() and dies with it.
/// Style sheets reach it as WyWidgets--WyBubbleTip with the label "label_text".
class WYWIDGETS_EXPORT WyBubbleButton : public QPushButton
{
    Q_OBJECT

public:
    /// A button without bubble.
    explicit WyBubbleButton(QWidget* parent = nullptr);
    ~WyBubbleButton() override;

    /// The bubble's text from the next time on that the pointer enters; an empty text means no bubble. A
    /// button that outlived the window of its bubble gets a new bubble here.
    void SetBubbleTip(const QString& text);

protected:
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void createBubble();
    void showBubble();

    QString m_tipText;
    QPointer<WyBubbleTip> m_bubbleTip;
};

} // namespace WyWidgets

#pragma once

#include "WyWidgets/wycontrol/WyBubbleWidget.h"

namespace WyWidgets {

/// A text bubble without a shadow: one word-wrapped label, as large as its text.
///
/// Style sheets reach the label as "label_text" and the bubble's colour with "qproperty-bubbleColor". Its
/// owner shows, hides and deletes it.
class WYWIDGETS_EXPORT WyBubbleTip : public WyBubbleWidget
{
    Q_OBJECT

public:
    /// A hidden bubble without text. A parent owns it, but it is a window anyway.
    explicit WyBubbleTip(QWidget* parent = nullptr);

    /// Makes the label the content. The constructor has done so: there is use for it only if the label was
    /// deleted, otherwise it does nothing.
    void InitView();
    /// Sets the label's text; nothing if the label was deleted.
    void SetBubbleTip(const QString& text);
};

} // namespace WyWidgets

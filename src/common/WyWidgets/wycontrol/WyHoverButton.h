#pragma once

#include "WyWidgets/WyExport.h"

#include <QPushButton>

namespace WyWidgets {

/// A button that tells when the pointer enters and leaves it.
///
/// Its owner deletes it; style it like any QPushButton. A slot of its signals that runs while the pointer
/// really moves should delete it with deleteLater(), as Qt still looks at a widget after entering or leaving
/// it.
class WYWIDGETS_EXPORT WyHoverButton : public QPushButton
{
    Q_OBJECT

public:
    /// A button without text.
    explicit WyHoverButton(QWidget* parent = nullptr);

Q_SIGNALS:
    /// The pointer has entered the button.
    void SignalEnterEvent();
    /// The pointer has left the button.
    void SignalLeaveEvent();

protected:
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
};

} // namespace WyWidgets

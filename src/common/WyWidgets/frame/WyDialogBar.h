#pragma once

#include "WyWidgets/WyExport.h"

#include <QWidget>

class QPushButton;

namespace WyWidgets {

/// The title bar of a WyDialog: a title, and the room for what the host adds to its layout "main_layout".
///
/// It paints a style-sheet background. The bar and its label "dialog_title" carry the dynamic property
/// "active", which follows the activation of the dialog, for style sheets to select on. A close button is the
/// host's to add, as a QPushButton named "dialog_close".
class WYWIDGETS_EXPORT WyDialogBar : public QWidget
{
    Q_OBJECT

public:
    /// A bar with an empty title. WyDialog::GetTitleBar() makes one.
    explicit WyDialogBar(QWidget* parent = nullptr);

    /// Sets the text of "dialog_title", if the label still exists. The flag has no meaning.
    void SetTitle(const QString& title, bool = true);
    /// The host's button named "dialog_close", or null.
    QPushButton* GetCloseButton() const;

public Q_SLOTS:
    /// Sets "active" on the bar and its title and lets the style sheet look at them again.
    void SlotWindowActive(bool active);

protected:
    void mousePressEvent(QMouseEvent* event) override;
};

} // namespace WyWidgets

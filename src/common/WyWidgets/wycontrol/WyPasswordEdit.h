#pragma once

#include "WyWidgets/WyExport.h"

#include <QLineEdit>

namespace WyWidgets {

/// A password edit with a switch at its end that shows the password in clear.
///
/// The switch is a checkable child button named "edit_psw_switch", 16 px square; a style sheet gives it one
/// picture for its normal and one for its ":checked" state (password shown). It never takes the focus. Text
/// keeps clear of it: the constructor adds to the text margins. Its accessible name ("Show password") and its
/// tool tip, which says what a click does, are the host's to replace.
class WYWIDGETS_EXPORT WyPasswordEdit : public QLineEdit
{
    Q_OBJECT

public:
    /// An empty edit that hides what is typed.
    explicit WyPasswordEdit(QWidget* parent = nullptr);

    /// Builds and connects the switch; the constructor has done so. Called again, it replaces only what the
    /// host has deleted and connects nothing twice.
    void InitView();

private:
    void showInClear(bool inClear);
};

} // namespace WyWidgets

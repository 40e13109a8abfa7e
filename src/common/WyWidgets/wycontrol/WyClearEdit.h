#pragma once

#include "WyWidgets/WyExport.h"

#include <QLineEdit>
#include <QPointer>

class QPushButton;

namespace WyWidgets {

/// A line edit with a button at its end that clears it; the button shows while there is text other than white
/// space.
///
/// The button is a child named "edit_button_clear", 20 px square, and gets its picture from a style sheet.
/// Text keeps clear of it: the constructor adds to the text margins. Clearing can be undone. The button's
/// accessible name and tool tip ("Clear") are the host's to replace.
class WYWIDGETS_EXPORT WyClearEdit : public QLineEdit
{
    Q_OBJECT

public:
    /// An empty edit; its button is hidden.
    explicit WyClearEdit(QWidget* parent = nullptr);

    /// Builds the button; the constructor has done so. Called again, it replaces only what the host has
    /// deleted.
    void InitView();
    /// Connects the button; the constructor has done so. Called again, it connects nothing twice.
    void InitConnect();

private:
    void followText(const QString& text);

    QPointer<QPushButton> m_clearButton;
};

} // namespace WyWidgets

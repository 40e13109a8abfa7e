#pragma once

#include <QMargins>
#include <QPushButton>

class QLineEdit;

namespace WyWidgets {

/// How a button stands at the end of a line edit. The margins are those of the edit's layout; they keep their
/// sides when the layout direction turns.
struct EndButton
{
    QString objectName;
    int sizePx;
    QMargins marginsPx;
};

/// Returns the edit's child button of that name after putting it at the end of the edit, vertically centred,
/// and keeping the edit's text clear of it. What is missing is made: the button, and a layout for it. The
/// button takes no focus and shows a pointing hand. Null if the host has given the edit a layout of another
/// kind and there is no such button.
QPushButton* placeEndButton(QLineEdit* edit, const EndButton& wanted);

} // namespace WyWidgets

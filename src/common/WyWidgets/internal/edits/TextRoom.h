#pragma once

#include <QMargins>
#include <QObject>

class QLineEdit;

namespace WyWidgets {

/// Keeps the end of a line edit free of text, for a button that stands there. It is a child of the edit and
/// moves the free room to the other side when the edit's layout direction turns.
class TextRoom : public QObject
{
    Q_OBJECT

public:
    /// Pixels to keep free: on the left in a right-to-left edit, on the right in any other.
    struct Widths
    {
        int leftPx;
        int rightPx;
    };

    /// Adds the room to the edit's text margins; an edit that has room already keeps it.
    static void reserve(QLineEdit* edit, Widths widths);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    TextRoom(QLineEdit* edit, Widths widths);
    void followDirection();

    QLineEdit* m_edit;
    Widths m_widths;
    QMargins m_taken;
};

} // namespace WyWidgets

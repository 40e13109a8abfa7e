#pragma once

#include "WyWidgets/WyExport.h"

#include <QPointer>
#include <QWidget>

class QLabel;

namespace WyWidgets {

/// A line of text in a small window of its own, shown at a point for a while.
///
/// Usually made by ShowToastText(), and then it deletes itself. It has no look of its own: style sheets
/// select the class (WyWidgets--WyToastWidget), its label "label_toast" and a hidden label "label_icon". The
/// window always has the size of its content and 8 px around it.
class WYWIDGETS_EXPORT WyToastWidget : public QWidget
{
    Q_OBJECT

public:
    /// A hidden window without text.
    explicit WyToastWidget(QWidget* parent = nullptr);

    /// Builds the content; the constructor has done it, and further calls do nothing.
    void InitView();
    /// Sets the text and takes the size that it needs. The text is also the accessible name, unless the host
    /// has given another.
    void SetText(const QString& text);

    /// Shows the text with the window's top left corner at the global point for that many milliseconds; 0 or
    /// less closes it on the next pass of the event loop. Nobody needs to keep or delete anything.
    static void ShowToastText(const QPoint& pos, const QString& text, int msec);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPointer<QLabel> m_label;
};

} // namespace WyWidgets

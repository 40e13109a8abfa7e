#pragma once

#include "WyWidgets/WyExport.h"

#include <QCheckBox>

namespace WyWidgets {

/// A check box whose text wraps at white space to the width that the layout gives it.
///
/// It can be squeezed down to its indicator, and grows in height with its lines. Wrapping writes line feeds
/// into text(); a later, wider size joins the lines again, so line feeds of the host's own do not last. Words
/// are never split. A text that is set while the box is on screen wraps with the next resize, or at once with
/// wrapLines().
class WYWIDGETS_EXPORT WyCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    /// A box with this text, unchecked.
    explicit WyCheckBox(const QString& text, QWidget* parent = nullptr);

    /// Wraps the text to lines of at most this many pixels; a wider word has a line to itself. Called by
    /// every resize.
    void wrapLines(int width);

    /// The width of the indicator and the height of the wrapped lines.
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
};

} // namespace WyWidgets

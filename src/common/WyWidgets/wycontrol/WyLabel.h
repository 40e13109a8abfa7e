#pragma once

#include "WyWidgets/WyExport.h"

#include <QLabel>

namespace WyWidgets {

/// A label that reports presses, for links, headings and pictures that act like a button.
///
/// Every mouse button counts; the press then goes on as it would on a plain QLabel. A slot may delete the
/// label.
class WYWIDGETS_EXPORT WyLabel : public QLabel
{
    Q_OBJECT

public:
    /// An empty label.
    explicit WyLabel(QWidget* parent = nullptr);

Q_SIGNALS:
    /// A mouse button, any one, went down on the label.
    void clicked();

public Q_SLOTS:
    /// Does nothing; kept for hosts that connect to it.
    void slotClicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
};

} // namespace WyWidgets

#pragma once

#include "WyWidgets/WyExport.h"

#include <QCheckBox>
#include <QPointer>

class QLabel;

namespace WyWidgets {

/// A check box with a small dot in its top right corner that marks something new or unread.
///
/// The dot is a child label named "label_dot", 4 px square, 10 px below the top edge;
/// style sheets give it its colour and roundness. It shows from the start: hide it while there is nothing to
/// mark. Its accessible name and tool tip ("New") are the host's to replace.
class WYWIDGETS_EXPORT WyDotCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    /// A box without text, with its dot.
    explicit WyDotCheckBox(QWidget* parent = nullptr);

    /// Shows or hides the dot, which shows at first.
    void SetDotVisible(bool visible);
    /// True only while the dot is on show: false as long as the control itself is hidden.
    bool IsDotVisible() const;
    /// Builds the dot; the constructor has done so. Called again, it replaces only what the host has deleted.
    void InitView();

private:
    QPointer<QLabel> m_dot;
};

} // namespace WyWidgets

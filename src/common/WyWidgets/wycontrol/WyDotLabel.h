#pragma once

#include "WyWidgets/WyExport.h"

#include <QLabel>
#include <QPointer>

namespace WyWidgets {

/// A label with a small dot in its top right corner that marks something new or unread.
///
/// The dot is a child label named "label_dot", 8 px square and 2 px away from the top and right edges;
/// style sheets give it its colour and roundness. It shows from the start: hide it while there is nothing to
/// mark. A margin (setMargin()) keeps the text clear of it. Its accessible name and tool tip ("New") are the
/// host's to replace.
class WYWIDGETS_EXPORT WyDotLabel : public QLabel
{
    Q_OBJECT

public:
    /// A label without text, with its dot.
    explicit WyDotLabel(QWidget* parent = nullptr);

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

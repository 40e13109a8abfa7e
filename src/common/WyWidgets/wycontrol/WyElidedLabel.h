#pragma once

#include "WyWidgets/WyExport.h"

#include <QLabel>

namespace WyWidgets {

/// A label that shows as much of its text as fits and ends it with an ellipsis where it does not.
///
/// It can be squeezed down to one pixel, so a long text never widens its layout. The text is drawn plainly:
/// markup, mnemonics, pictures and word wrap of QLabel are not. To let the user read a cut text, set it as
/// the tool tip too:
///
///     label->setText(path);
///     label->setToolTip(path);
///
/// The cut text is measured anew when the text or the width changes. After a change of the font alone call
/// setText() with another text first, or resize the label.
class WYWIDGETS_EXPORT WyElidedLabel : public QLabel
{
    Q_OBJECT

public:
    /// An empty label.
    explicit WyElidedLabel(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    /// A label with this text.
    explicit WyElidedLabel(const QString& text, QWidget* parent = nullptr,
                           Qt::WindowFlags flags = Qt::WindowFlags());

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void letLayoutsSqueeze();
    QRect textRect() const;
    void elide(int width);

    QString m_sourceText;
    QString m_elidedText;
    int m_elidedWidth = 1;
    bool m_elided = false;
};

} // namespace WyWidgets

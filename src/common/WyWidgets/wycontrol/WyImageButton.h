#pragma once

#include "WyWidgets/WyExport.h"

#include <QPointer>
#include <QPushButton>

class QLabel;

namespace WyWidgets {

/// A button with an icon at its left that has one image for the enabled and one for the disabled state.
///
/// The icon is a label of 24 x 24 px named "label_icon", 4 px from the left edge, or from the right one where
/// the button runs from right to left; it gets a style sheet of its own that shows the images. The button's
/// text knows nothing of the icon: keep it clear with a padding of about 32 px on that side in the button's
/// style sheet. The properties can be set from there too, with "qproperty-iconNormal" and
/// "qproperty-iconDisable".
class WYWIDGETS_EXPORT WyImageButton : public QPushButton
{
    Q_OBJECT
    /// The size that the icon was built with. Not the icon size of QAbstractButton, whose functions stay as
    /// they are.
    Q_PROPERTY(QSize iconSize MEMBER m_iconSize)
    /// The image of the enabled button.
    Q_PROPERTY(QString iconNormal MEMBER m_iconNormal WRITE setIconNormal)
    /// The image of the disabled button.
    Q_PROPERTY(QString iconDisable MEMBER m_iconDisable WRITE setIconDisable)
    /// The distance of the icon from the left edge that it was built with, in px.
    Q_PROPERTY(int leftMargin MEMBER m_leftMargin)

public:
    /// A button without text and images.
    explicit WyImageButton(QWidget* parent = nullptr);
    /// A button with this text, without images.
    explicit WyImageButton(const QString& text, QWidget* parent = nullptr);

    /// The image shown while the button is enabled: a path or resource name as style sheets take it.
    void setIconNormal(QString path);
    /// The image shown while the button is disabled.
    void setIconDisable(QString path);
    /// Gives the icon its style sheet anew. The properties "iconSize" and "leftMargin" have no effect here:
    /// they tell what the icon was built with.
    void UpdateStyle();

private:
    void createView();

    QPointer<QLabel> m_iconLabel;
    QSize m_iconSize;
    QString m_iconNormal;
    QString m_iconDisable;
    int m_leftMargin = 0;
};

} // namespace WyWidgets

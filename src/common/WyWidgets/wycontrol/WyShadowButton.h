#pragma once

#include "WyWidgets/WyExport.h"
#include "WyWidgets/frame/WyShadowWidget.h"

#include <QPointer>

class QPushButton;

namespace WyWidgets {

/// A push button inside a container that casts a shadow round it.
///
/// The container always has the size that its layout wants. Choose the shadow with setShadowColor() or
/// "qproperty-shadowColor"; style the inner QPushButton by the name given with SetButtonObjectName(). Its
/// owner deletes it.
class WYWIDGETS_EXPORT WyShadowButton : public WyShadowWidget
{
    Q_OBJECT

public:
    /// A button without text, without shadow until it gets a colour.
    explicit WyShadowButton(QWidget* parent = nullptr);

    /// Names the inner button for style sheets. Like the next four, it does nothing if the host has deleted
    /// the button.
    void SetButtonObjectName(const QString& name);
    /// Sets the inner button's text.
    void SetButtonText(const QString& text);
    /// The inner button's minimum width in px.
    void SetButtonMinimumWidth(int width);
    /// The inner button's height in px.
    void SetButtonFixedHeight(int height);
    /// Presses the button for 100 ms, whatever the argument, and then clicks it.
    void ButtonAnimateClick(int msec);

    /// Builds the button; the constructor has done so. Called again, it replaces only a button that the host
    /// has deleted.
    void InitView();
    /// Connects the button; the constructor has done so. Called again, it connects nothing twice.
    void InitConnect();

Q_SIGNALS:
    /// The inner button was clicked.
    void SignalButtonClicked();

private:
    QPointer<QPushButton> m_button;
};

} // namespace WyWidgets

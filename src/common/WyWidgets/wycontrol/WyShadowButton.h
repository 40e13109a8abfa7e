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
    explicit WyShadowButton(QWidget* parent = nullptr);

    // These reach the inner button; they do nothing if the host has deleted it.
    void SetButtonObjectName(const QString& name);
    void SetButtonText(const QString& text);
    void SetButtonMinimumWidth(int width);
    void SetButtonFixedHeight(int height);
    /// Presses the button for 100 ms, whatever the argument, and then clicks it.
    void ButtonAnimateClick(int msec);

    // Called by the constructor. Another call makes up for a button that the host has deleted, else it
    // changes nothing.
    void InitView();
    void InitConnect();

signals:
    void SignalButtonClicked();

private:
    QPointer<QPushButton> m_button;
};

} // namespace WyWidgets

#pragma once

#include "WyWidgets/WyExport.h"

#include <QPointer>
#include <QWidget>

namespace WyWidgets {

/// A translucent popup window with one empty panel for the host's content.
///
/// The window paints nothing: style the panel, "widget_content". Fill it from a derived class or find it by
/// that name. Like any popup the window hides on a click outside; its owner deletes it.
class WYWIDGETS_EXPORT WyPopupBox : public QWidget
{
    Q_OBJECT

public:
    /// A hidden popup with its first, empty panel.
    explicit WyPopupBox(QWidget* parent = nullptr);

    /// Adds one more panel named "widget_content" and returns it; the constructor has added the first.
    QWidget* createContent();

protected:
    /// The first panel; null once the host has deleted it.
    QPointer<QWidget> m_contentWidget;
};

} // namespace WyWidgets

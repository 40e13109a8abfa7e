#pragma once

#include "WyWidgets/WyExport.h"

#include <QColor>
#include <QDialog>
#include <QPointer>

class QLabel;

namespace QWK {
class WidgetWindowAgent;
}

namespace WyWidgets {

class WyDialogBar;

/// A dialog without the native frame: a content panel with a shadow, an optional title bar, and an optional
/// mask that dims the widget below while the dialog is open.
///
/// Call createContent() and put everything, the bar from GetTitleBar() first, into a layout on the panel.
/// Style sheets select "dialog_content" (dynamic property "active", which follows the activation of the
/// dialog) and the mask, "label_mask_with_margin" or "label_mask_no_margin"; they set the shadow with
/// "qproperty-shadowActiveColor" and "qproperty-shadowDeactiveColor".
class WYWIDGETS_EXPORT WyDialog : public QDialog
{
    Q_OBJECT
    /// The shadow of the active dialog, for "qproperty-shadowActiveColor".
    Q_PROPERTY(QColor shadowActiveColor READ shadowActiveColor WRITE setShadowActiveColor)
    /// The shadow of the inactive dialog, for "qproperty-shadowDeactiveColor".
    Q_PROPERTY(QColor shadowDeactiveColor READ shadowDeactiveColor WRITE setShadowDeactiveColor)

public:
    /// A dialog whose frame a window agent takes over.
    explicit WyDialog(QWidget* parent = nullptr);
    /// With `installAgent` the same. Without an agent the window system draws its usual frame.
    WyDialog(bool installAgent, QWidget* parent);
    /// Takes the mask along.
    ~WyDialog() override;

    /// Creates a window agent, owned by the dialog, and lets it take over the frame; false does nothing. A
    /// constructor has usually done so already.
    void installWindowAgent(bool install);
    /// Makes the panel "dialog_content" with a shadow in a margin of 12 px, and the rest of the window
    /// transparent. While that panel exists, further calls return it.
    QWidget* createContent();
    /// The title bar, 32 px high: made on the first call as a child of the dialog. The host puts it into a
    /// layout. It drags the dialog if there is an agent. A button "dialog_close" that the host has added
    /// takes its own clicks from the time the dialog is shown.
    WyDialogBar* GetTitleBar();
    /// Lets another child of the title bar receive the mouse itself (true) or be a part of the draggable area
    /// (false). Null is ignored.
    void registHitTestVisible(QWidget* widget, bool visible); // spelling is public interface
    /// The dialog itself, not the panel that createContent() returns.
    QWidget* GetContentWidget();
    /// Covers `parent` with the mask label, a child of it. Null is ignored. A mask that is still there keeps
    /// its parent and its name and only takes the size of the new one.
    void ShowMask(QWidget* parent, bool withMargin);

    /// The shadow of the active dialog, invalid until set. A new colour shows at the next change of
    /// activation.
    QColor shadowActiveColor() const;
    void setShadowActiveColor(QColor color);
    /// The shadow of the inactive dialog, likewise.
    QColor shadowDeactiveColor() const;
    void setShadowDeactiveColor(QColor color);

public Q_SLOTS:
    /// Deletes the mask at once. Closing the dialog does not do this; its destructor does.
    void SlotHideMask();

Q_SIGNALS:
    /// The dialog became active or inactive. A slot that ends the dialog here uses deleteLater(): the
    /// application still has events to deliver to it.
    void SignalWindowActive(bool active);

protected:
    bool event(QEvent* event) override;
    bool nativeEvent(const QByteArray& eventType, void* message, long* result) override;

private:
    void registerCloseButton();
    void showActivation(QWidget* panel, bool active);

    QPointer<WyDialogBar> m_titleBar;
    QPointer<QLabel> m_mask;
    QPointer<QWK::WidgetWindowAgent> m_agent;
    QColor m_shadowActiveColor;
    QColor m_shadowDeactiveColor;
};

} // namespace WyWidgets

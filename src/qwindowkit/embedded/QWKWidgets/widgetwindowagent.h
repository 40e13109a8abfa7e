#pragma once

#include <QWKCore/windowagentbase.h>

#include <QPointer>

#include <memory>

namespace QWK {

class TitleBarArea;
class WindowFrame;

/// Turns a top-level widget into a frameless window that is moved by a title bar of the host's own and
/// resized by its borders.
///
/// It takes no ownership of the window, the title bar or their children; what is destroyed drops out.
class WidgetWindowAgent : public WindowAgentBase
{
    Q_OBJECT

public:
    explicit WidgetWindowAgent(QObject* parent = nullptr);
    ~WidgetWindowAgent() override;

    /// Takes charge of the window, now and whenever it gets a new native window. Once per agent: false for a
    /// second call and for null.
    bool setup(QWidget* w);

    QWidget* titleBar() const;
    /// The widget that moves the window. Replacing a title bar forgets its buttons and hit-test-visible
    /// widgets.
    void setTitleBar(QWidget* w);

    QWidget* systemButton(SystemButton button) const;
    /// A widget in the title bar that keeps its clicks while it is visible and enabled; null unregisters.
    void setSystemButton(SystemButton button, QWidget* w);

    bool isHitTestVisible(const QWidget* w) const;
    /// A widget in the title bar that keeps its clicks while it is visible.
    void setHitTestVisible(QWidget* w, bool visible = true);

Q_SIGNALS:
    void titleBarChanged(QWidget* w);
    void systemButtonChanged(SystemButton button, QWidget* w);

protected:
    QWidget* host() const override;

private:
    QPointer<QWidget> m_host;
    std::unique_ptr<TitleBarArea> m_titleBarArea;
    std::unique_ptr<WindowFrame> m_frame;
};

} // namespace QWK

#pragma once

#include <QHash>
#include <QObject>
#include <QPoint>
#include <QVariant>

class QWidget;

namespace QWK {

/// What every window agent offers, whatever its window is made of: attributes and requests to the window.
class WindowAgentBase : public QObject
{
    Q_OBJECT

public:
    enum SystemButton { Unknown, WindowIcon, Help, Minimize, Maximize, Close };
    Q_ENUM(SystemButton)

    ~WindowAgentBase() override;

    /// The value stored under the key; invalid if there is none.
    QVariant windowAttribute(const QString& key) const;
    /// Stores any key for the host to read back; none of them changes the window here. An invalid value
    /// removes the key. Always true.
    Q_INVOKABLE bool setWindowAttribute(const QString& key, const QVariant& attribute);

public Q_SLOTS:
    /// Opens the menu with the window's own actions at this global position.
    void showSystemMenu(const QPoint& pos);
    /// Moves the window to the middle of the free area of its screen.
    void centralize();
    /// Brings the window back from the task bar if need be, to the front, and activates it.
    void raise();

protected:
    explicit WindowAgentBase(QObject* parent);

    /// The window that the agent was set up for, or null.
    virtual QWidget* host() const = 0;

private:
    QHash<QString, QVariant> m_attributes;
};

} // namespace QWK

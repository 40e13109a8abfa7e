#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace WyWidgets {

/// Tells when a widget's layout has given its items their places: after a change of the items (text, font,
/// style, number) and when the widget appears. Changes of the widget's own size are left to its resize
/// handler.
///
/// The watcher is a child of the widget, which needs no handler, signal or slot of its own for it.
class LayoutWatcher : public QObject
{
public:
    LayoutWatcher(QWidget* widget, std::function<void()> settled);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> m_settled;
};

} // namespace WyWidgets

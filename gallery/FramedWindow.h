#pragma once

#include "WyWidgets/frame/WyMainWindow.h"

class QPushButton;

namespace WyWidgets {
class WyWindowBar;
}

/// A main window with a WyWindowBar that is set up the way applications usually want it: children of the bar
/// take their own clicks, the system buttons follow the platform, and a line marks the window's edge.
class FramedWindow : public WyWidgets::WyMainWindow
{
    Q_OBJECT

public:
    explicit FramedWindow(QWidget* parent = nullptr);

    WyWidgets::WyWindowBar* bar() const;

protected:
    /// A widget on the left that takes its own clicks.
    void addControl(QWidget* widget, int stretch = 0, Qt::Alignment alignment = Qt::Alignment());
    void addTool(QPushButton* button);
    /// To be called when everything else is on the bar.
    void addSystemButtons();
    void changeEvent(QEvent* event) override;

private:
    void showWindowState();

    WyWidgets::WyWindowBar* m_bar;
};

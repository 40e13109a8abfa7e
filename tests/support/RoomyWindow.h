#pragma once

#include <QVBoxLayout>
#include <QWidget>

namespace WyTest {

/// A window with a control in its middle and room round it for the pointer to leave the control.
class RoomyWindow : public QWidget
{
public:
    explicit RoomyWindow(QWidget* control)
    {
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(80, 80, 80, 80);
        column->addWidget(control);
    }

    QPoint besideTheControl() const { return mapToGlobal(QPoint(20, 20)); }
};

} // namespace WyTest

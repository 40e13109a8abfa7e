#pragma once

#include <QEvent>
#include <QWidget>

namespace WyTest {

/// Counts how often a widget is painted.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget* widget) { widget->installEventFilter(this); }

    int count() const { return m_count; }
    void reset() { m_count = 0; }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++m_count;
        return false;
    }

private:
    int m_count = 0;
};

} // namespace WyTest

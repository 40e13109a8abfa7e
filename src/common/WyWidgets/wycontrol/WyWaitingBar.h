#pragma once

#include "WyWidgets/WyExport.h"

#include <QColor>
#include <QPointer>
#include <QWidget>

#include <memory>

class QTimer;

namespace WyWidgets {

class FrameStore;

/// An indeterminate progress bar: a rounded blue plate that a green highlight sweeps from left to right, once
/// a second, for as long as the bar runs.
///
/// Place it in a layout or over another widget, call start() while some work is under way and stop() when it
/// ends. Its look is fixed: no style sheet changes its colours, its rounding or its speed. The owner deletes
/// it.
class WYWIDGETS_EXPORT WyWaitingBar : public QWidget
{
    Q_OBJECT

public:
    /// A bar that does not run yet; whether it shows is up to its parent.
    explicit WyWaitingBar(QWidget* parent = nullptr);
    ~WyWaitingBar() override;

    /// Does nothing: the colours are fixed.
    void setColor(const QColor& startColor, const QColor& endColor);
    /// Does nothing: the corners keep their radius of 6 px.
    void setRoundness(double roundness);

    /// Wide enough to see the sweep, and as high as the two corners.
    QSize sizeHint() const override;
    /// The room that the two corners need.
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Shows the bar and lets the highlight run from the left end; a running bar goes on where it is.
    void start();
    /// Hides the bar and puts the highlight back to the left end.
    void stop();
    /// One step of the sweep.
    void SlotTimeout();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRectF paintPlate(QPainter& painter) const;

    // Kept for the two setters, which leave the look as it is.
    QColor m_startColor;
    QColor m_endColor;
    [[maybe_unused]] double m_roundness = 0.0;
    QPointer<QTimer> m_timer;
    double m_position = 0.0;
    std::unique_ptr<FrameStore> m_frames;
};

} // namespace WyWidgets

#pragma once

#include "WyWidgets/WyExport.h"

#include <QPointer>
#include <QWidget>

#include <memory>

class QLabel;
class QTimer;

namespace WyWidgets {

class AccessibleSlider;
class RoundedBar;

/// A thin seek bar whose handle shows only while the pointer is over it, and for a second after.
///
/// The handle is a child label named "label_pos", 16 px square; a style sheet gives it its look. The bar
/// paints its own groove and fill in the upper 16 px, translucent white and green, and no background, not
/// even a style sheet's: lay it on a dark or coloured ground. The position is kept as a fraction of the
/// travel (the width less the handle's), so it survives SetMaxValue() and resizing. While the travel or the
/// maximum is 0, no new fraction can be computed and the old one stays. The accessible name and tool tip
/// ("Position") are the host's to replace. Slots of all signals may delete the slider.
class WYWIDGETS_EXPORT WyHandleSlider : public QWidget
{
    Q_OBJECT

public:
    /// A slider from 0 to 100 that stands at 0.
    explicit WyHandleSlider(QWidget* parent = nullptr);
    ~WyHandleSlider() override;

    /// Sets the value of the right end (default 100) and keeps the fraction: half of 100 becomes half of the
    /// new maximum. Neither emits nor repaints.
    void SetMaxValue(qint64 maximum);
    /// Moves the handle without emitting; values outside 0..maximum are not clamped and put handle and fill
    /// beyond the ends.
    void SetSliderPos(qint64 pos);
    /// The value of the position, rounded down. Dragging works in single precision, so that it may differ by
    /// one from the value signalled last; with a large maximum by more.
    qint64 GetSliderPos() const;
    /// Puts the handle where the position is.
    void UpdateControlPos();
    /// Moves the handle's left edge to x (clamped to the travel), as a press or a drag there does, and emits
    /// SignalPosChanged() if that changes the value.
    void MoveToPos(qint64 x);
    /// Hides the handle after so many milliseconds; a countdown already running is left as it is, and a
    /// negative time starts none.
    void StartTimer(int msec);
    /// Ends a countdown of StartTimer(): the handle stays.
    void StopTimer();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The left button went up after a press on the handle or the groove. A press ends without it when
    /// another button goes up, or when the slider is hidden or disabled or a dialog blocks its window.
    void SignalHanderReleased(); // spelling is public interface
    /// A mouse button, any one, went down on the handle.
    void SignalHanderPressed(); // spelling is public interface
    /// A press or a drag has moved the handle to another value. The position is stored only after the signal:
    /// GetSliderPos() still returns the old value, and a SetSliderPos() from a slot is overwritten.
    void SignalPosChanged(qint64 nValue);

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    friend class AccessibleSlider;

    void createHandle();
    void hideHandle();
    void placeHandle(int x);
    double ratioOf(qint64 pos) const;
    void setRatio(double ratio);
    void choosePos(qint64 pos);
    void paintGroove(QPainter* painter);
    void paintFill(QPainter* painter);
    int travel() const;
    int handleX() const;

    QPointer<QLabel> m_handle;
    double m_ratio = 0.0;
    qint64 m_maximum = 100;
    qint32 m_pressState = 0;
    bool m_hovered = false;
    QPointer<QTimer> m_hideTimer;
    std::unique_ptr<RoundedBar> m_groove;
    std::unique_ptr<RoundedBar> m_fill;
};

} // namespace WyWidgets

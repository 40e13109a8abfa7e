#pragma once

#include "WyWidgets/WyExport.h"

#include <QColor>
#include <QPointer>
#include <QWidget>

#include <memory>

class QTimer;

namespace WyWidgets {

/// A busy indicator: a ring of rounded bars in which a bright head runs round with a fading trail behind it.
///
/// It is a square of twice the sum of inner radius and line length (40 px at first), hidden until start() and
/// hidden again by stop(). As a child it lies over its parent, centred on it and disabling it while spinning
/// if the constructor was told so; the constructor with a modality makes it a frameless window of its own.
/// The owner deletes it; deleting it while it keeps its parent disabled enables the parent again.
class WYWIDGETS_EXPORT WyWaitingSpinnerWidget : public QWidget
{
    Q_OBJECT

public:
    /// A child of `parent` (or a plain window without one).
    explicit WyWaitingSpinnerWidget(QWidget* parent = nullptr, bool centerOnParent = true,
                                    bool disableParentWhenSpinning = false);
    /// A frameless, translucent dialog window of the given modality. Centred on its parent, it takes the
    /// numbers of a child: they are screen coordinates here.
    explicit WyWaitingSpinnerWidget(Qt::WindowModality modality, QWidget* parent = nullptr,
                                    bool centerOnParent = true, bool disableParentWhenSpinning = false);
    ~WyWaitingSpinnerWidget() override;

    /// The colour of the head; the trail has it with less alpha. Black at first. Shows with the next step.
    void setColor(QColor color);
    /// Rounding of the bars in percent, kept within 0 to 100. 100 at first. Shows with the next step.
    void setRoundness(double roundness);
    /// Alpha of the end of the trail, in percent of full alpha; about 3.14 at first. Shows with the next
    /// step.
    void setMinimumTrailOpacity(double minimumTrailOpacity);
    /// Share of the ring over which the trail fades, in percent. 80 at first. Shows with the next step.
    void setTrailFadePercentage(double trailFadePercentage);
    /// Turns of the head per second; about 1.57 at first. A rate of 0 or less (and NaN) keeps the last speed.
    void setRevolutionsPerSecond(double revolutionsPerSecond);
    /// Number of bars, 20 at first. The head starts again at the first bar. 0 and less paint nothing and keep
    /// the last speed; more than 10,000 paint nothing.
    void setNumberOfLines(int numberOfLines);
    /// Radial length of a bar in px, 10 at first.
    void setLineLength(int lineLength);
    /// Thickness of a bar in px, 2 at first.
    void setLineWidth(int lineWidth);
    /// Distance of the bars from the centre in px, 10 at first.
    void setInnerRadius(int innerRadius);

    /// The colour of the head.
    QColor color() const;
    /// Rounding of the bars in percent, 0 to 100.
    double roundness() const;
    /// Alpha of the end of the trail in percent; the first value is pi.
    double minimumTrailOpacity() const;
    /// Share of the ring over which the trail fades, in percent.
    double trailFadePercentage() const;
    /// Turns of the head per second as set last; the first value is half of pi.
    double revolutionsPersSecond() const; // spelling is public interface
    /// Number of bars.
    int numberOfLines() const;
    /// Radial length of a bar in px.
    int lineLength() const;
    /// Thickness of a bar in px.
    int lineWidth() const;
    /// Distance of the bars from the centre in px.
    int innerRadius() const;
    /// True from start() to stop().
    bool isSpinning() const;

public Q_SLOTS:
    /// Shows the spinner and lets it spin; the head goes on where it is if it spins already.
    void start();
    /// Hides the spinner and enables the parent if that was asked for, also when the spinner never started.
    void stop();
    /// One step of the animation.
    void rotate();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    class Frames;

    static int lineCountDistanceFromPrimary(int current, int primary, int totalNrOfLines);
    static QColor currentLineColor(int countDistance, int totalNrOfLines, double trailFadePerc,
                                   double minOpacity, QColor color);

    void initialize();
    void updateSize();
    void updateTimer();
    void updatePosition();
    QRectF paintLine(QPainter& painter, int index) const;

    QColor m_color = Qt::black;
    double m_roundness = 100.0;
    double m_minimumTrailOpacity = 3.141592653589793;
    double m_trailFadePercentage = 80.0;
    double m_revolutionsPerSecond = 1.5707963267948966;
    int m_numberOfLines = 20;
    int m_lineLength = 10;
    int m_lineWidth = 2;
    int m_innerRadius = 10;
    QPointer<QTimer> m_timer;
    bool m_centerOnParent;
    bool m_disableParentWhenSpinning;
    int m_currentCounter = 0;
    bool m_isSpinning = false;
    std::unique_ptr<Frames> m_frames;
};

} // namespace WyWidgets

#pragma once

#include <WyWidgets/wycontrol/WyToast.h>

#include <QVector>

#include <functional>

class KnobPanel;
class QLineEdit;
class QSpinBox;

/// Knobs for the settings of one toast. They work on a toast that is never shown; the settings of that one
/// are copied to those that are.
class ToastKnobs
{
public:
    using Toast = WyWidgets::WyToast;

    /// `changed` is called after each change by hand.
    explicit ToastKnobs(std::function<void()> changed);

    void addInt(KnobPanel* panel, const QString& label, int minimum, int maximum, int (Toast::*get)() const,
                void (Toast::*set)(int));
    void addCheck(KnobPanel* panel, const QString& label, bool (Toast::*get)() const,
                  void (Toast::*set)(bool));
    void addColor(KnobPanel* panel, const QString& label, QColor (Toast::*get)() const,
                  void (Toast::*set)(const QColor&));
    QLineEdit* addText(KnobPanel* panel, const QString& label, QString (Toast::*get)() const,
                       void (Toast::*set)(const QString&));
    /// Width and height.
    void addSize(KnobPanel* panel, const QString& label, int maximum, QSize (Toast::*get)() const,
                 void (Toast::*set)(const QSize&));
    /// Family, size and weight.
    void addFont(KnobPanel* panel, const QString& label, QFont (Toast::*get)() const,
                 void (Toast::*set)(const QFont&));
    void addAlignment(KnobPanel* panel, const QString& label);
    /// One of the library's icons, or a picture that it does not have.
    void addIcon(KnobPanel* panel, const QString& label, QPixmap (Toast::*get)() const,
                 void (Toast::*setIcon)(WyWidgets::ToastIcon), void (Toast::*setPicture)(const QPixmap&));
    void addBounds(KnobPanel* panel);
    /// A table of all margins; the caller owns it.
    QWidget* createMarginTable();

    void applyPreset(WyWidgets::ToastPreset preset);
    void copyTo(Toast* toast) const;

private:
    template <typename Get, typename Set>
    void copyBy(Get get, Set set);
    void addLength(KnobPanel* panel, const QString& label, int maximum, QSize (Toast::*get)() const,
                   void (Toast::*set)(const QSize&), int (QSize::*length)() const,
                   void (QSize::*setLength)(int));
    QSpinBox* createMarginKnob(QMargins (Toast::*get)() const, int (QMargins::*side)() const,
                               void (Toast::*setSide)(int));

    std::function<void()> m_changed;
    Toast m_pattern;
    QVector<std::function<void(Toast*)>> m_copySteps;
    QVector<std::function<void()>> m_refreshers;
};

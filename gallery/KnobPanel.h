#pragma once

#include <QColor>
#include <QFrame>

#include <functional>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

/// A column of labelled controls that change an example live. Each add function starts with the given value
/// and calls `apply` on every change (not at once).
class KnobPanel : public QFrame
{
    Q_OBJECT

public:
    explicit KnobPanel(QWidget* parent = nullptr);

    QCheckBox* addCheck(const QString& label, bool value, std::function<void(bool)> apply);
    QComboBox* addChoice(const QString& label, const QStringList& choices, int index,
                         std::function<void(int)> apply);
    QPushButton* addColor(const QString& label, const QColor& value, std::function<void(QColor)> apply);
    /// Changes what a colour knob shows; nothing is applied.
    static void showColor(QPushButton* knob, const QColor& color);
    QSpinBox* addInt(const QString& label, int minimum, int maximum, int value,
                     std::function<void(int)> apply);
    QDoubleSpinBox* addReal(const QString& label, double minimum, double maximum, double value,
                            std::function<void(double)> apply);
    QLineEdit* addText(const QString& label, const QString& value, std::function<void(QString)> apply);
    /// The first button of a panel stands out.
    QPushButton* addButton(const QString& text, std::function<void()> act);
    /// A line that the example writes to.
    QLabel* addReadout(const QString& label, const QString& text = QString());

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addRow(const QString& label, QWidget* control);

    QFormLayout* m_form;
};

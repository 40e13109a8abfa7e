#pragma once

#include "WyWidgets/WyExport.h"

#include <QIntValidator>

namespace WyWidgets {

/// An integer validator that refuses whatever lies outside its range, also while the user is still typing.
///
/// With a bottom of 10 the digit 5 is refused, so that 50 cannot be typed digit by digit: choose it where the
/// bottom is at most 1, or where values are pasted or picked. Text that is no number counts as 0.
class WYWIDGETS_EXPORT WyIntValidator : public QIntValidator
{
    Q_OBJECT

public:
    /// Takes all values of int.
    explicit WyIntValidator(QObject* parent = nullptr);
    /// Takes the values bottom to top.
    WyIntValidator(int bottom, int top, QObject* parent = nullptr);

    /// Intermediate for an empty input, Invalid outside bottom to top, else what QIntValidator says.
    State validate(QString& input, int& pos) const override;
    /// Raises a value below the bottom to the bottom; leaves one above the top alone.
    void fixup(QString& input) const override;
};

} // namespace WyWidgets

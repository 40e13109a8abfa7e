#include "WyWidgets/wycontrol/WyIntValidator.h"

namespace WyWidgets {

WyIntValidator::WyIntValidator(QObject* parent) : QIntValidator(parent) {}

WyIntValidator::WyIntValidator(int bottom, int top, QObject* parent) : QIntValidator(bottom, top, parent) {}

QValidator::State WyIntValidator::validate(QString& input, int& pos) const
{
    if (input.isEmpty())
        return Intermediate;
    const int value = input.toInt();
    if (value < bottom() || value > top())
        return Invalid;
    return QIntValidator::validate(input, pos);
}

void WyIntValidator::fixup(QString& input) const
{
    // A value above the top stays: the user sees what was refused.
    if (input.toInt() < bottom())
        input = QString::number(bottom());
}

} // namespace WyWidgets

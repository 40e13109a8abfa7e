#include "FuzzTarget.h"

#include "WyWidgets/wycontrol/WyIntValidator.h"

namespace {

QValidator::State plainState(const QIntValidator& base, QString text, int position)
{
    if (text.isEmpty())
        return QValidator::Intermediate;
    bool isNumber = false;
    const int parsed = text.toInt(&isNumber, 10);
    const int value = isNumber ? parsed : 0;
    const bool inside = base.bottom() <= value && value <= base.top();
    return inside ? base.validate(text, position) : QValidator::Invalid;
}

QString plainFixup(const QIntValidator& base, const QString& text)
{
    return text.toInt() < base.bottom() ? QString::number(base.bottom()) : text;
}

} // namespace

void Fuzz::check(Input& input)
{
    const int bottom = input.between(0, 60000) - 30000;
    const int top = input.between(0, 60000) - 30000;
    const WyWidgets::WyIntValidator validator(bottom, top);
    const QIntValidator base(bottom, top);
    const int position = input.byte();
    const QString text = input.text(40);
    QString judged = text;
    int at = position;
    const QValidator::State state = validator.validate(judged, at);
    expect(state == plainState(base, text, position), "validate");
    QString fixed = text;
    validator.fixup(fixed);
    expectEqual(fixed, plainFixup(base, text), "fixup");
}

#include "widgets/countvalidator.h"

#include <algorithm>

namespace {

bool isPlainDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

QLocale plainLocale()
{
    QLocale plain = QLocale::c();
    plain.setNumberOptions(QLocale::RejectGroupSeparator);
    return plain;
}

} // namespace

CountValidator::CountValidator(int top, QObject *parent)
    : CountValidator(0, top, parent)
{}

CountValidator::CountValidator(int bottom, int top, QObject *parent)
    : QIntValidator(bottom, top, parent)
{
    setLocale(plainLocale());
}

QValidator::State CountValidator::validate(QString &text, int & /*position*/) const
{
    if (text.isEmpty()) {
        return Intermediate;
    }
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    const bool isPlain = std::all_of(text.cbegin(), text.cend(), isPlainDigit);
    const bool isPadded = bottom() > 0 && text.startsWith(QLatin1Char('0'));
    if (!isPlain || !isNumber || number > top() || isPadded) {
        return Invalid;
    }
    return number < bottom() ? Intermediate : Acceptable;
}

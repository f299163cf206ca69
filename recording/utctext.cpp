#include "recording/utctext.h"

#include "frames/timeunits.h"

#include <QDate>

#include <algorithm>

namespace {

constexpr qint64 usPerDay = secondsPerDay * usPerSecond;
constexpr qint64 julianDayOf1970 = 2440588;
constexpr qint64 earliestUs = -719162 * usPerDay;
constexpr qint64 latestUs = 2932897 * usPerDay - 1;
/// What each digit of a text is replaced by in this one.
const QByteArray utcForm = "0000-00-00T00:00:00.000000Z";

/// Writes a number right-aligned with leading zeros.
void putDigits(QByteArray &text, int end, int digits, qint64 number)
{
    for (int i = 1; i <= digits; ++i) {
        text[end - i] = static_cast<char>('0' + number % 10);
        number /= 10;
    }
}

bool hasUtcForm(const QByteArray &text)
{
    return text.size() == utcForm.size() &&
           std::equal(text.begin(), text.end(), utcForm.begin(), [](char present, char wanted) {
               return wanted == '0' ? present >= '0' && present <= '9' : present == wanted;
           });
}

int numberAt(const QByteArray &text, int begin, int digits)
{
    return text.mid(begin, digits).toInt();
}

} // namespace

QByteArray utcText(qint64 utcUs)
{
    const qint64 us = std::clamp(utcUs, earliestUs, latestUs);
    const qint64 days = (us >= 0 ? us : us - usPerDay + 1) / usPerDay;
    const qint64 ofDay = us - days * usPerDay;
    const qint64 seconds = ofDay / usPerSecond;
    int year = 0;
    int month = 0;
    int day = 0;
    QDate::fromJulianDay(julianDayOf1970 + days).getDate(&year, &month, &day);
    QByteArray text = utcForm;
    putDigits(text, 4, 4, year);
    putDigits(text, 7, 2, month);
    putDigits(text, 10, 2, day);
    putDigits(text, 13, 2, seconds / secondsPerHour);
    putDigits(text, 16, 2, seconds / secondsPerMinute % 60);
    putDigits(text, 19, 2, seconds % secondsPerMinute);
    putDigits(text, 26, 6, ofDay % usPerSecond);
    return text;
}

std::optional<qint64> parseUtcText(const QByteArray &text)
{
    if (!hasUtcForm(text)) {
        return std::nullopt;
    }
    const QDate date(numberAt(text, 0, 4), numberAt(text, 5, 2), numberAt(text, 8, 2));
    const int hour = numberAt(text, 11, 2);
    const int minute = numberAt(text, 14, 2);
    const int second = numberAt(text, 17, 2);
    if (!date.isValid() || hour > 23 || minute > 59 || second > 59) {
        return std::nullopt;
    }
    const qint64 seconds = (hour * 60 + minute) * 60 + second;
    return (date.toJulianDay() - julianDayOf1970) * usPerDay + seconds * usPerSecond +
           numberAt(text, 20, 6);
}

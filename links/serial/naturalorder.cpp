#include "links/serial/naturalorder.h"

namespace {

/// A number in a text: its digits without leading zeros, and where it ends.
struct Number
{
    QStringRef digits;
    int end = 0;
};

Number numberAt(const QString &text, int position)
{
    int begin = position;
    while (begin < text.size() && text.at(begin) == QLatin1Char('0')) {
        ++begin;
    }
    int end = begin;
    while (end < text.size() && text.at(end).isDigit()) {
        ++end;
    }
    return {text.midRef(begin, end - begin), end};
}

int compareNumbers(const QStringRef &left, const QStringRef &right)
{
    return left.size() != right.size() ? left.size() - right.size() : left.compare(right);
}

} // namespace

bool naturallyBefore(const QString &left, const QString &right)
{
    int l = 0;
    int r = 0;
    while (l < left.size() && r < right.size()) {
        if (left.at(l).isDigit() && right.at(r).isDigit()) {
            const Number leftNumber = numberAt(left, l);
            const Number rightNumber = numberAt(right, r);
            const int order = compareNumbers(leftNumber.digits, rightNumber.digits);
            if (order != 0) {
                return order < 0;
            }
            l = leftNumber.end;
            r = rightNumber.end;
        } else if (left.at(l) != right.at(r)) {
            return left.at(l) < right.at(r);
        } else {
            ++l;
            ++r;
        }
    }
    const bool leftEnds = l >= left.size();
    const bool rightEnds = r >= right.size();
    return leftEnds == rightEnds ? left < right : leftEnds;
}

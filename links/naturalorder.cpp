#include "naturalorder.h"

namespace {

/// The digits that begin at a position, without leading zeros.
QStringRef numberAt(const QString &text, int position)
{
    int begin = position;
    while (begin < text.size() && text.at(begin) == QLatin1Char('0')) {
        ++begin;
    }
    int end = begin;
    while (end < text.size() && text.at(end).isDigit()) {
        ++end;
    }
    return text.midRef(begin, end - begin);
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
            const QStringRef leftNumber = numberAt(left, l);
            const QStringRef rightNumber = numberAt(right, r);
            if (const int order = compareNumbers(leftNumber, rightNumber); order != 0) {
                return order < 0;
            }
            l = leftNumber.position() + leftNumber.size();
            r = rightNumber.position() + rightNumber.size();
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

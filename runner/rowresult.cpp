#include "runner/rowresult.h"

QString verdictWord(RowResult::Verdict verdict)
{
    switch (verdict) {
    case RowResult::Verdict::Sent:
        return QStringLiteral("sent");
    case RowResult::Verdict::Passed:
        return QStringLiteral("pass");
    case RowResult::Verdict::Failed:
        return QStringLiteral("fail");
    case RowResult::Verdict::Lost:
        break;
    }
    return QStringLiteral("lost");
}

QString rowName(const RowResult &result)
{
    constexpr int digits = 3;
    constexpr int decimal = 10;
    if (result.number == 0) {
        return result.description;
    }
    const QString number =
        QStringLiteral("%1").arg(result.number, digits, decimal, QLatin1Char('0'));
    return QStringLiteral("%1 %2").arg(number, result.description).trimmed();
}

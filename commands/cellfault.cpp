#include "commands/cellfault.h"

#include "commands/commandcolumns.h"
#include "frames/delaymarker.h"
#include "frames/hexfault.h"
#include "frames/hextext.h"
#include "frames/messages.h"

#include <algorithm>

namespace {

QString hexFaultText(const QString &text)
{
    switch (hexFaultOf(text)) {
    case HexFault::OddDigits:
        return Messages::tr("A digit is missing: each byte has two.");
    case HexFault::NoHexDigit:
        return Messages::tr("Not a hexadecimal number.");
    case HexFault::None:
        break;
    }
    return {};
}

QString delayFaultText(const QString &text)
{
    const QString digits = withoutBlanks(text);
    const bool isNumber = std::all_of(digits.cbegin(), digits.cend(), [](QChar character) {
        return character >= QLatin1Char('0') && character <= QLatin1Char('9');
    });
    return isNumber ? QString() : Messages::tr("Not a number of milliseconds.");
}

} // namespace

QString cellFault(const CommandRow &row, int column)
{
    if (isDelay(row.cmd)) {
        return column == CommandColumn::Data ? delayFaultText(row.data) : QString();
    }
    switch (column) {
    case CommandColumn::Cmd:
        return hexFaultText(row.cmd);
    case CommandColumn::Addr:
        return hexFaultText(row.addr);
    case CommandColumn::Data:
        return hexFaultText(row.data);
    default:
        return {};
    }
}

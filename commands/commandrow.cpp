#include "commands/commandrow.h"

#include "frames/crc16.h"
#include "frames/delaymarker.h"
#include "frames/framebuilder.h"
#include "frames/hextext.h"

#include <tuple>

namespace {

constexpr int addressDigits = 4;

} // namespace

bool operator==(const CommandRow &left, const CommandRow &right)
{
    const auto all = [](const CommandRow &row) {
        return std::tie(row.description, row.selected, row.cmd, row.addr, row.data, row.crc,
                        row.dataType, row.originalData, row.expectations);
    };
    return all(left) == all(right);
}

bool operator!=(const CommandRow &left, const CommandRow &right)
{
    return !(left == right);
}

CommandRow emptyRow()
{
    CommandRow row;
    row.dataType = QStringLiteral("short");
    return row;
}

CommandRow delayRow()
{
    CommandRow row;
    row.description = QStringLiteral("Daley(ms)");
    row.cmd = delayMarker;
    row.data = QStringLiteral("1000");
    return row;
}

QString frameText(const CommandRow &row)
{
    return withoutBlanks(row.cmd + row.addr + row.data);
}

QString crcCellText(const QString &frameText)
{
    if (isDelay(frameText)) {
        return {};
    }
    const std::optional<QByteArray> payload = parsePayload(frameText);
    if (!payload) {
        return {};
    }
    const quint16 crc = crc16Modbus(*payload);
    return groupPairsFromRight(paddedHex(crc, 4));
}

QString normalisedAddress(const QString &typed)
{
    return isBlank(typed) ? typed : paddedHex(typed.toUInt(nullptr, hexBase), addressDigits);
}

QString nextAddress(const QString &address)
{
    return paddedHex(quint64(address.toUInt(nullptr, hexBase)) + 1, addressDigits);
}

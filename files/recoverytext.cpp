#include "files/recoverytext.h"

#include "files/commandline.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

const QByteArray firstLine = QByteArrayLiteral(
    "// Tarnwick: a command list that was not saved. Each \"//row\" holds all of a "
    "row, the line behind it what other command files hold.\n");
const QByteArray rowPrefix = QByteArrayLiteral("//row ");

/// The cells of a row, in the order of the table's columns. The CRC follows from them.
/// What the row is to be answered with stands there only where there is something.
enum Cell { Description, Selected, Cmd, Addr, Data, DataType, OriginalData, Expectations };

QByteArray jsonCells(const CommandRow &row)
{
    QJsonArray cells{row.description, row.selected, row.cmd,         row.addr,
                     row.data,        row.dataType, row.originalData};
    if (!row.expectations.isEmpty()) {
        cells.append(row.expectations);
    }
    return QJsonDocument(cells).toJson(QJsonDocument::Compact);
}

} // namespace

bool isRecoveryText(const QByteArray &bytes)
{
    return bytes.startsWith(firstLine);
}

QByteArray recoveryText(const QVector<CommandRow> &rows)
{
    QByteArray text = firstLine;
    for (const CommandRow &row : rows) {
        text += rowPrefix + jsonCells(row) + '\n' + commandLine(row).toUtf8() + '\n';
    }
    return text;
}

std::optional<CommandRow> recoveredRow(const QByteArray &line)
{
    if (!line.startsWith(rowPrefix)) {
        return std::nullopt;
    }
    const QJsonArray cells = QJsonDocument::fromJson(line.mid(rowPrefix.size())).array();
    if (cells.size() != Expectations && cells.size() != Expectations + 1) {
        return std::nullopt;
    }
    CommandRow row;
    row.description = cells.at(Description).toString();
    row.selected = cells.at(Selected).toBool();
    row.cmd = cells.at(Cmd).toString();
    row.addr = cells.at(Addr).toString();
    row.data = cells.at(Data).toString();
    row.crc = crcCellText(frameText(row));
    row.dataType = cells.at(DataType).toString();
    row.originalData = cells.at(OriginalData).toString();
    row.expectations = cells.at(Expectations).toString();
    return row;
}

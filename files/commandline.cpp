#include "files/commandline.h"

#include "frames/delaymarker.h"
#include "frames/hextext.h"

#include <QStringList>

namespace {

constexpr QLatin1String selectedWord("select", 6);
constexpr QLatin1String unselectedWord("unselect", 8);
constexpr QLatin1String emptyCmd("%%", 2);
constexpr QLatin1String emptyAddress("%%%%", 4);

constexpr int cmdWidth = 2;
constexpr int addressWidth = 4;

bool belongsToFrame(QChar character)
{
    const ushort code = character.unicode();
    return (code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z') ||
           (code >= 'a' && code <= 'z') || code == '+' || code == '%';
}

bool beginsRemark(QChar character)
{
    constexpr ushort lastAscii = 127;
    return character == QLatin1Char('(') || character.unicode() > lastAscii;
}

/// The frame field without blanks and punctuation, up to a remark that may follow it.
QString filteredFrame(const QString &field)
{
    QString frame;
    frame.reserve(field.size());
    for (const QChar character : field) {
        if (beginsRemark(character)) {
            break;
        }
        if (belongsToFrame(character)) {
            frame.append(character);
        }
    }
    return frame;
}

QString unlessPlaceholder(const QString &text, QLatin1String placeholder)
{
    return text == placeholder ? QString() : text;
}

QString addressPart(const QString &frame)
{
    return frame.mid(cmdWidth, addressWidth).leftJustified(addressWidth);
}

/// The pause stands where other rows have their address; what follows it is not part of it.
void fillDelayRow(CommandRow &row, const QString &frame)
{
    row.cmd = delayMarker;
    row.data = addressPart(frame);
}

/// CMD and address have fixed widths: a frame that is too short leaves blanks in their cells.
void fillCommandRow(CommandRow &row, const QString &frame)
{
    const QString cmd = frame.left(cmdWidth).leftJustified(cmdWidth);
    const QString address = addressPart(frame);
    row.cmd = unlessPlaceholder(cmd, emptyCmd);
    row.addr = unlessPlaceholder(address, emptyAddress);
    row.data = groupPairsFromRight(frame.mid(cmdWidth + addressWidth));
    row.crc = crcCellText(frameText(row));
}

QString addressField(const CommandRow &row)
{
    const bool mayStayEmpty = row.cmd == delayMarker;
    return row.addr.isEmpty() && !mayStayEmpty ? QString(emptyAddress) : row.addr;
}

/// A pause that loading has filled up with blanks goes back as it came, "++500".
bool isFilledUpDelay(const CommandRow &row)
{
    return row.cmd == delayMarker && row.addr.isEmpty() && row.data.endsWith(QLatin1Char(' '));
}

QString frameField(const CommandRow &row)
{
    if (isFilledUpDelay(row)) {
        return row.cmd + row.data.trimmed();
    }
    const QString cmd = row.cmd.isEmpty() ? QString(emptyCmd) : row.cmd;
    return cmd + QLatin1Char(' ') + addressField(row) + QLatin1Char(' ') + row.data;
}

bool isLineOfEmptyRow(const QString &line)
{
    return line == QLatin1String(",unselect,%% %%%% ") || line == QLatin1String(",select,%% %%%% ");
}

} // namespace

bool isIgnoredLine(const QString &line)
{
    return line.isEmpty() || line.startsWith(QLatin1String("//"));
}

std::optional<CommandRow> parseCommandLine(const QString &line)
{
    const QStringList fields = line.split(QLatin1Char(','));
    if (fields.size() != 2 && fields.size() != 3) {
        return std::nullopt;
    }
    CommandRow row;
    row.description = fields.first();
    row.selected = fields.size() == 3 && fields.at(1) == selectedWord;
    const QString frame = filteredFrame(fields.last());
    if (isDelay(frame)) {
        fillDelayRow(row, frame);
    } else {
        fillCommandRow(row, frame);
    }
    return row;
}

QString commandLine(const CommandRow &row)
{
    const QString selection = row.selected ? selectedWord : unselectedWord;
    const QString line =
        row.description + QLatin1Char(',') + selection + QLatin1Char(',') + frameField(row);
    return isLineOfEmptyRow(line) ? QString() : line;
}

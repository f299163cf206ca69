#include "files/commandfile.h"

#include "files/commandline.h"
#include "files/recoverytext.h"

namespace {

/// Takes the line that begins at `begin`, with its line end, and moves `begin` behind it.
QByteArray takeLine(const QByteArray &bytes, int &begin)
{
    const int lineEnd = bytes.indexOf('\n', begin);
    const int end = lineEnd < 0 ? bytes.size() : lineEnd + 1;
    const char *const start = bytes.constData() + begin;
    const int size = end - begin;
    begin = end;
    return QByteArray::fromRawData(start, size);
}

} // namespace

std::optional<CommandRow> CommandLineReader::read(const QByteArray &line)
{
    if (m_isRecovery) {
        return recoveredRow(line);
    }
    const QString text = m_decoder.decode(line);
    if (isIgnoredLine(text)) {
        return std::nullopt;
    }
    std::optional<CommandRow> row;
    if (line.size() <= longestCommandLine) {
        row = parseCommandLine(text);
    }
    m_sawInvalidLine = m_sawInvalidLine || !row;
    return row;
}

CommandFile readCommandFile(const QByteArray &bytes)
{
    CommandFile file;
    file.isRecovery = isRecoveryText(bytes);
    CommandLineReader reader(file.isRecovery);
    int begin = 0;
    while (begin < bytes.size() && !file.hasTooManyRows) {
        const std::optional<CommandRow> row = reader.read(takeLine(bytes, begin));
        if (!row) {
            continue;
        }
        file.hasTooManyRows = file.rows.size() == mostCommandRows;
        if (!file.hasTooManyRows) {
            file.rows.append(*row);
        }
    }
    file.hasInvalidLines = reader.sawInvalidLine();
    return file;
}

QString commandFileText(const QVector<CommandRow> &rows)
{
    QString text;
    for (const CommandRow &row : rows) {
        const QString line = commandLine(row);
        if (!line.isEmpty()) {
            text += line + QLatin1Char('\n');
        }
    }
    return text;
}

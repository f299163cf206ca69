#include "files/commandfile.h"

#include "files/commandline.h"
#include "files/directivelines.h"
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

/// Gives rows the expectations that stand behind them in a file.
class ExpectationKeeper
{
public:
    /// Takes a line without a row, and its text.
    void take(const QByteArray &line, const QString &text, QVector<CommandRow> &rows)
    {
        if (rows.isEmpty() && m_runLine.isEmpty() && isRunLine(line)) {
            m_runLine = text.trimmed() + QLatin1Char('\n');
        } else if (!rows.isEmpty() && !m_runLine.isEmpty() && isExpectationLine(line)) {
            QString &expectations = rows.last().expectations;
            expectations += (expectations.isEmpty() ? m_runLine : QString()) + text.trimmed() +
                            QLatin1Char('\n');
        }
    }

    /// Also where it expects nothing, the first row keeps the line that makes them count.
    void finish(QVector<CommandRow> &rows) const
    {
        if (!rows.isEmpty() && rows.first().expectations.isEmpty()) {
            rows.first().expectations = m_runLine;
        }
    }

private:
    QString m_runLine;
};

/// The line that makes expectations count, from the first row that has it.
QString runLineOf(const QVector<CommandRow> &rows)
{
    for (const CommandRow &row : rows) {
        if (!row.expectations.isEmpty()) {
            return row.expectations.section(QLatin1Char('\n'), 0, 0) + QLatin1Char('\n');
        }
    }
    return {};
}

} // namespace

std::optional<CommandRow> CommandLineReader::read(const QByteArray &line)
{
    if (m_isRecovery) {
        return recoveredRow(line);
    }
    m_text = m_decoder.decode(line);
    if (isIgnoredLine(m_text)) {
        return std::nullopt;
    }
    std::optional<CommandRow> row;
    if (line.size() <= longestCommandLine) {
        row = parseCommandLine(m_text);
    }
    m_sawInvalidLine = m_sawInvalidLine || !row;
    return row;
}

CommandFile readCommandFile(const QByteArray &bytes)
{
    CommandFile file;
    file.isRecovery = isRecoveryText(bytes);
    CommandLineReader reader(file.isRecovery);
    ExpectationKeeper expectations;
    int begin = 0;
    while (begin < bytes.size() && !file.hasTooManyRows) {
        const QByteArray line = takeLine(bytes, begin);
        const std::optional<CommandRow> row = reader.read(line);
        if (!row) {
            // A row of a recovery file holds its own.
            if (!file.isRecovery) {
                expectations.take(line, reader.text(), file.rows);
            }
            continue;
        }
        file.hasTooManyRows = file.rows.size() == mostCommandRows;
        if (!file.hasTooManyRows) {
            file.rows.append(*row);
        }
    }
    if (!file.isRecovery) {
        expectations.finish(file.rows);
    }
    file.hasInvalidLines = reader.sawInvalidLine();
    return file;
}

QString commandFileText(const QVector<CommandRow> &rows)
{
    QString lines;
    for (const CommandRow &row : rows) {
        const QString line = commandLine(row);
        if (!line.isEmpty()) {
            lines += line + QLatin1Char('\n') + row.expectations.section(QLatin1Char('\n'), 1);
        }
    }
    return lines.isEmpty() ? lines : runLineOf(rows) + lines;
}

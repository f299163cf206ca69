#pragma once

#include "commands/commandrow.h"
#include "files/linedecoder.h"

#include <QByteArray>
#include <QVector>

#include <optional>

/// The most rows that are loaded from one file: more would keep the window busy for seconds.
inline constexpr int mostCommandRows = 10'000;

/// The most bytes that a command file may have.
inline constexpr int largestCommandFile = 8 * 1024 * 1024;

/// The most bytes that the line of a command may have: the longest instruction there can be, 65535
/// bytes written with blanks between them, and room for its description.
inline constexpr int longestCommandLine = 256 * 1024;

/// Reads the lines of a command file, one after the other.
class CommandLineReader
{
public:
    /// Whether the lines are those of a recovery file.
    explicit CommandLineReader(bool isRecovery = false)
        : m_isRecovery(isRecovery)
    {}

    /// The row of a line, given with or without its line end. Nothing for an empty line, for a
    /// comment and for an invalid line: one with too few or too many fields, or too long.
    std::optional<CommandRow> read(const QByteArray &line);

    /// The line read last as text, without its line end; nothing in a recovery file.
    const QString &text() const { return m_text; }

    bool sawInvalidLine() const { return m_sawInvalidLine; }

private:
    bool m_isRecovery;
    LineDecoder m_decoder;
    QString m_text;
    bool m_sawInvalidLine = false;
};

/// What a command file holds.
struct CommandFile
{
    /// The rows of all valid lines, in the order of the file.
    QVector<CommandRow> rows;
    bool hasInvalidLines = false;
    /// There are more than mostCommandRows; reading stopped there.
    bool hasTooManyRows = false;
    /// It is a recovery file: its rows are all that they were.
    bool isRecovery = false;
};

/// Reads the bytes of a command file; any bytes will do.
CommandFile readCommandFile(const QByteArray &bytes);

/// The lines that stand for the rows, each with its line end, without those of empty rows. The line
/// that makes expectations count comes first; without any row nothing stands behind it.
QString commandFileText(const QVector<CommandRow> &rows);

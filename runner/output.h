#pragma once

#include <QByteArray>
#include <QString>

/// The standard output, which results go to. Bytes leave at once.
class Output
{
public:
    void write(const QByteArray &bytes);

    /// Whether all of it went out.
    bool isGood() const { return m_isGood; }

private:
    bool m_isGood = true;
};

/// Tells something on the standard error, as a line that begins with the program's name.
void complain(const QString &text);

/// From now on a reader of our output that goes away is a failed write, not our end.
void outliveReaders();

/// Whether the standard output, or error, is a terminal.
bool isOutputTerminal();
bool isErrorTerminal();

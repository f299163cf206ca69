#pragma once

#include "system/filedescriptor.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// A pair of pseudo-terminals in raw mode: this side talks, the other one is opened like a port.
///
/// The other side is kept open here as well, so that this one never sees a hang-up, which would be
/// reported over and over while nobody has the port open.
class PseudoTerminal
{
public:
    /// Opens a new pair; nothing if the system gives none (see errno).
    static std::optional<PseudoTerminal> open();

    /// What is to be opened as a port, such as /dev/pts/3.
    QString portPath() const { return m_portPath; }

    /// To be watched for bytes that can be read or room to write. It doesn't block.
    int descriptor() const { return m_master.get(); }

    /// What has arrived; empty if nothing has.
    QByteArray read() const;

    /// Writes as many of the bytes as there is room for and returns their number.
    int write(const QByteArray &bytes) const;

    /// Makes the port as good as new for the next one who opens it: raw, empty, free.
    void resetPort() const;

private:
    PseudoTerminal(FileDescriptor master, FileDescriptor port, QString portPath);

    FileDescriptor m_master;
    FileDescriptor m_port;
    QString m_portPath;
};

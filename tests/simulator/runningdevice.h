#pragma once

#include "system/filedescriptor.h"

#include <QByteArray>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

/// A simulated device that runs as a process of its own, with its port, in a folder of its own.
class RunningDevice
{
public:
    RunningDevice();
    /// Ends the device if it still runs.
    ~RunningDevice();
    RunningDevice(const RunningDevice &) = delete;
    RunningDevice &operator=(const RunningDevice &) = delete;

    /// Starts the device and opens its port; false if either fails.
    bool start(const QStringList &options = {});
    /// Starts the device and waits for the line that it prints first.
    bool startOnly(const QStringList &options = {});
    bool openPort();
    void closePort() { m_port = FileDescriptor(); }

    /// Writes all of the bytes, read meanwhile or not.
    void write(const QByteArray &bytes);
    /// Reads until so many bytes are there; fewer only after 10 s.
    QByteArray read(int count);
    /// What has come when nothing more has come for that many ms.
    QByteArray readUntilQuiet(int quietMs = 100);

    /// Waits until there is something to read; false if nothing comes.
    bool waitForBytes(int timeoutMs = 10000) const;
    /// Bytes that could be read now.
    int unreadBytes() const;

    /// The first line on its standard output.
    QString printedPath() const { return m_printedPath; }
    QString folder() const { return m_folder.path(); }
    QProcess &process() { return m_process; }
    /// Whether somebody has the port to themselves, as far as the system knows.
    bool isPortExclusive() const;
    /// Processor time used so far, in clock ticks of the system.
    qint64 processorTicks() const;

private:
    QByteArray readOnce() const;

    QTemporaryDir m_folder;
    QProcess m_process;
    QString m_printedPath;
    FileDescriptor m_port;
};

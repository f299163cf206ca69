#pragma once

#include "linesettings.h"

#include <QByteArray>
#include <QString>

/// A pseudo-terminal as a test sees it: the far end of the wire of a serial port.
class TestPort
{
public:
    TestPort();
    ~TestPort();
    TestPort(const TestPort &) = delete;
    TestPort &operator=(const TestPort &) = delete;

    /// What is opened as the port.
    QString path() const { return m_path; }

    /// The far end itself, for who wants to wait for it; it never blocks.
    int descriptor() const { return m_master; }

    /// Everything that has arrived so far.
    QByteArray received();

    /// Sends bytes to the one who has the port open; waits while there is no room.
    void send(const QByteArray &bytes) const;

    /// How the one who has the port open has set the line.
    LineSettings line() const { return readLineSettings(m_master); }

    /// Takes the device away, as pulling out its plug does.
    void unplug();

private:
    int m_master = -1;
    QString m_path;
    QByteArray m_received;
};

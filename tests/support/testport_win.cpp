#include "testport.h"

#include <QDir>
#include <QFile>
#include <QThread>

#include <array>
#include <windows.h>

// tests/windows/wire keeps up a wire from COM3 to COM4 in the folder named by TARNWICK_WIRE: the
// file "ready" is there while it stands, and making the file "unplug" has it cut and laid anew.

namespace {

QString inWire(const char *name)
{
    return QDir(qEnvironmentVariable("TARNWICK_WIRE")).filePath(QLatin1String(name));
}

bool isReady()
{
    return QFile::exists(inWire("ready"));
}

/// Waits for the wire to stand or not, for a few seconds.
void waitForWire(bool ready)
{
    constexpr unsigned long stepMs = 10;
    for (int i = 0; i < 1000 && isReady() != ready; ++i) {
        QThread::msleep(stepMs);
    }
}

HANDLE openFarEnd()
{
    HANDLE port = CreateFileW(LR"(\\.\COM4)", GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                              OPEN_EXISTING, 0, nullptr);
    COMMTIMEOUTS atOnce{};
    atOnce.ReadIntervalTimeout = MAXDWORD;
    SetCommTimeouts(port, &atOnce);
    return port;
}

} // namespace

TestPort::TestPort()
    : m_path(QStringLiteral("COM3"))
{
    waitForWire(true);
    m_master = int(HandleToLong(openFarEnd()));
}

TestPort::~TestPort()
{
    unplug();
}

QByteArray TestPort::received()
{
    std::array<char, 4096> part{};
    DWORD count = 0;
    while (ReadFile(LongToHandle(m_master), part.data(), DWORD(part.size()), &count, nullptr) !=
               0 &&
           count > 0) {
        m_received.append(part.data(), int(count));
    }
    return m_received;
}

void TestPort::send(const QByteArray &bytes) const
{
    DWORD count = 0;
    WriteFile(LongToHandle(m_master), bytes.constData(), DWORD(bytes.size()), &count, nullptr);
}

void TestPort::unplug()
{
    if (m_master == -1) {
        return;
    }
    CloseHandle(LongToHandle(m_master));
    m_master = -1;
    QFile request(inWire("unplug"));
    if (request.open(QIODevice::WriteOnly)) {
        request.close();
        waitForWire(false);
    }
}

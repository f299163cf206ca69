#include "testport.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

TestPort::TestPort()
    : m_master(posix_openpt(O_RDWR | O_NOCTTY))
{
    grantpt(m_master);
    unlockpt(m_master);
    std::array<char, 64> name{};
    ptsname_r(m_master, name.data(), name.size());
    m_path = QString::fromLocal8Bit(name.data());
    termios raw{};
    tcgetattr(m_master, &raw);
    cfmakeraw(&raw);
    tcsetattr(m_master, TCSANOW, &raw);
    const int flags = fcntl(m_master, F_GETFL);
    fcntl(m_master, F_SETFL, flags | O_NONBLOCK);
}

TestPort::~TestPort()
{
    unplug();
}

QByteArray TestPort::received()
{
    std::array<char, 4096> part{};
    for (ssize_t count = 0; (count = read(m_master, part.data(), part.size())) > 0;) {
        m_received.append(part.data(), static_cast<int>(count));
    }
    return m_received;
}

void TestPort::send(const QByteArray &bytes) const
{
    int sent = 0;
    while (sent < bytes.size()) {
        pollfd room{m_master, POLLOUT, 0};
        poll(&room, 1, -1);
        const ssize_t count =
            write(m_master, bytes.constData() + sent, static_cast<size_t>(bytes.size() - sent));
        sent += count > 0 ? static_cast<int>(count) : 0;
    }
}

void TestPort::unplug()
{
    if (m_master >= 0) {
        close(m_master);
        m_master = -1;
    }
}

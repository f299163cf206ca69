#include "simulator/pseudoterminal.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <termios.h>

namespace {

constexpr int readSize = 4096;
constexpr int longestPortPath = 128;

void makeRaw(int port)
{
    termios settings{};
    if (tcgetattr(port, &settings) == 0) {
        cfmakeraw(&settings);
        tcsetattr(port, TCSANOW, &settings);
    }
}

} // namespace

std::optional<PseudoTerminal> PseudoTerminal::open()
{
    FileDescriptor master(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC));
    std::array<char, longestPortPath> path{};
    if (!master.isValid() || grantpt(master.get()) != 0 || unlockpt(master.get()) != 0 ||
        ptsname_r(master.get(), path.data(), path.size()) != 0) {
        return std::nullopt;
    }
    FileDescriptor port(::open(path.data(), O_RDWR | O_NOCTTY | O_CLOEXEC));
    if (!port.isValid()) {
        return std::nullopt;
    }
    makeRaw(port.get());
    return PseudoTerminal(std::move(master), std::move(port), QFile::decodeName(path.data()));
}

PseudoTerminal::PseudoTerminal(FileDescriptor master, FileDescriptor port, QString portPath)
    : m_master(std::move(master))
    , m_port(std::move(port))
    , m_portPath(std::move(portPath))
{}

QByteArray PseudoTerminal::read() const
{
    std::array<char, readSize> buffer{};
    const ssize_t count = ::read(m_master.get(), buffer.data(), buffer.size());
    return {buffer.data(), static_cast<int>(std::max<ssize_t>(0, count))};
}

int PseudoTerminal::write(const QByteArray &bytes) const
{
    const ssize_t count =
        ::write(m_master.get(), bytes.constData(), static_cast<size_t>(bytes.size()));
    return static_cast<int>(std::max<ssize_t>(0, count));
}

void PseudoTerminal::resetPort() const
{
    makeRaw(m_port.get());
    tcflush(m_port.get(), TCIFLUSH);
    // Left behind by a program that died while it had the port to itself.
    ioctl(m_port.get(), TIOCNXCL);
}

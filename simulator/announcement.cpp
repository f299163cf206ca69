#include "simulator/announcement.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

Announcement::Announcement(const QString &line)
    : m_rest((line + QLatin1Char('\n')).toLocal8Bit())
    , m_room(STDOUT_FILENO, QSocketNotifier::Write)
{
    const bool isOpen = fcntl(STDOUT_FILENO, F_GETFD) >= 0;
    m_room.setEnabled(isOpen);
    QObject::connect(&m_room, &QSocketNotifier::activated, &m_room, [this] { print(); });
}

void Announcement::print()
{
    const ssize_t written =
        ::write(STDOUT_FILENO, m_rest.constData(), static_cast<size_t>(m_rest.size()));
    const bool mayTakeItLater = written >= 0 || errno == EAGAIN || errno == EINTR;
    m_rest.remove(0, static_cast<int>(std::max<ssize_t>(0, written)));
    m_room.setEnabled(mayTakeItLater && !m_rest.isEmpty());
}

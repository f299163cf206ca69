#include "simulator/openwatch.h"

#include <QFile>
#include <QSocketNotifier>

#include <array>
#include <cstring>
#include <sys/inotify.h>

namespace {

constexpr int bufferSize = 4096;

} // namespace

OpenWatch::OpenWatch(const QString &path, QObject *parent)
    : QObject(parent)
    , m_events(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    if (!m_events.isValid()) {
        return;
    }
    const QByteArray name = QFile::encodeName(path);
    if (inotify_add_watch(m_events.get(), name.constData(), IN_OPEN | IN_CLOSE) < 0) {
        m_events = FileDescriptor();
        return;
    }
    auto *notifier = new QSocketNotifier(m_events.get(), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &OpenWatch::update);
}

void OpenWatch::update()
{
    if (!m_events.isValid()) {
        return;
    }
    std::array<char, bufferSize> buffer{};
    ssize_t size = 0;
    while ((size = ::read(m_events.get(), buffer.data(), buffer.size())) > 0) {
        const char *position = buffer.data();
        while (position < buffer.data() + size) {
            inotify_event event{};
            std::memcpy(&event, position, sizeof event);
            position += sizeof event + event.len;
            count(event.mask);
        }
    }
}

void OpenWatch::count(quint32 eventMask)
{
    if ((eventMask & IN_OPEN) != 0 && ++m_openings == 1) {
        emit opened();
    }
    // One that was opened before the watch began may be closed, too.
    if ((eventMask & IN_CLOSE) != 0 && m_openings > 0 && --m_openings == 0) {
        emit closed();
    }
}

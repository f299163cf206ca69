#include "system/endsignals.h"
#include "system/filedescriptor.h"

#include <QSocketNotifier>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>

namespace {

// What the handler may touch.
std::atomic<int> writeEnd{-1};
std::atomic<unsigned> patience{0};
static_assert(std::atomic<int>::is_always_lock_free);

/// The alarm ends a program that doesn't get round to its event loop; only the first signal sets
/// it.
void passOn(int signal)
{
    const int errorBefore = errno;
    if (const unsigned seconds = patience.exchange(0)) {
        alarm(seconds);
    }
    const char mark = static_cast<char>(signal);
    // When the pipe is full, the event loop has enough to find.
    [[maybe_unused]] const ssize_t written = write(writeEnd, &mark, 1);
    errno = errorBefore;
}

void handle(int signal, void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigaction(signal, &action, nullptr);
}

bool isIgnored(int signal)
{
    struct sigaction present = {};
    return sigaction(signal, nullptr, &present) == 0 && present.sa_handler == SIG_IGN;
}

/// They may be blocked or ignored in whoever started the program.
void handleEndSignals()
{
    handle(SIGALRM, SIG_DFL);
    handle(SIGTERM, passOn);
    handle(SIGINT, passOn);
    if (!isIgnored(SIGHUP)) {
        handle(SIGHUP, passOn);
    }
    sigset_t all = {};
    sigemptyset(&all);
    for (const int signal : {SIGALRM, SIGTERM, SIGINT, SIGHUP}) {
        sigaddset(&all, signal);
    }
    pthread_sigmask(SIG_UNBLOCK, &all, nullptr);
}

/// The reading end of the pipe that the handler writes to.
class SignalPipe : public QObject
{
public:
    SignalPipe(FileDescriptor reading, EndSignals *parent)
        : QObject(parent)
        , m_reading(std::move(reading))
        , m_notifier(m_reading.get(), QSocketNotifier::Read)
    {
        connect(&m_notifier, &QSocketNotifier::activated, this, [this, parent] {
            std::array<char, 16> marks{};
            if (read(m_reading.get(), marks.data(), marks.size()) > 0) {
                emit parent->arrived(marks.front());
            }
        });
    }

private:
    FileDescriptor m_reading;
    QSocketNotifier m_notifier;
};

} // namespace

EndSignals::EndSignals(int patienceSeconds, QObject *parent)
    : QObject(parent)
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_NONBLOCK | O_CLOEXEC) != 0) {
        return;
    }
    new SignalPipe(FileDescriptor(ends[0]), this);
    writeEnd = ends[1];
    patience = static_cast<unsigned>(patienceSeconds);
    handleEndSignals();
}

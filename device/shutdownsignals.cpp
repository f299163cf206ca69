#include "shutdownsignals.h"

#include <QSocketNotifier>

#include <csignal>
#include <sys/signalfd.h>

namespace {

sigset_t blockedSignals()
{
    sigset_t endSignals{};
    sigemptyset(&endSignals);
    sigaddset(&endSignals, SIGTERM);
    sigaddset(&endSignals, SIGINT);
    sigaddset(&endSignals, SIGHUP);
    sigprocmask(SIG_BLOCK, &endSignals, nullptr);
    return endSignals;
}

} // namespace

ShutdownSignals::ShutdownSignals(QObject *parent)
    : QObject(parent)
{
    const sigset_t endSignals = blockedSignals();
    m_descriptor = FileDescriptor(signalfd(-1, &endSignals, SFD_NONBLOCK | SFD_CLOEXEC));
    auto *notifier = new QSocketNotifier(m_descriptor.get(), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &ShutdownSignals::takeSignal);
}

void ShutdownSignals::takeSignal()
{
    signalfd_siginfo information{};
    if (::read(m_descriptor.get(), &information, sizeof information) > 0) {
        emit arrived();
    }
}

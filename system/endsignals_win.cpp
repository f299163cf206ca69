#include "system/endsignals.h"

#include <QMutex>

#include <atomic>
#include <csignal>
#include <windows.h>

namespace {

// What the handler, which the system calls in a thread of its own, may touch.
QMutex receiverMutex;
EndSignals *receiver = nullptr;
std::atomic<DWORD> patienceMs{0};

/// What the console says in other words.
int signalOf(DWORD event)
{
    return event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT ? SIGINT : SIGTERM;
}

void passOn(int signal)
{
    const QMutexLocker locker(&receiverMutex);
    if (EndSignals *const object = receiver) {
        QMetaObject::invokeMethod(
            object, [object, signal] { emit object->arrived(signal); }, Qt::QueuedConnection);
    }
}

/// The system ends a program whose handler comes back, and one that is closed in a few seconds
/// anyway.
BOOL WINAPI handle(DWORD event)
{
    passOn(signalOf(event));
    Sleep(patienceMs);
    return FALSE;
}

void setReceiver(EndSignals *object)
{
    const QMutexLocker locker(&receiverMutex);
    receiver = object;
}

} // namespace

EndSignals::EndSignals(int patienceSeconds, QObject *parent)
    : QObject(parent)
{
    constexpr DWORD msPerSecond = 1000;
    patienceMs = static_cast<DWORD>(patienceSeconds) * msPerSecond;
    setReceiver(this);
    connect(this, &QObject::destroyed, [] { setReceiver(nullptr); });
    SetConsoleCtrlHandler(handle, TRUE);
}

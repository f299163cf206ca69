#include "links/serial/portstate.h"

#include <windows.h>

namespace {

HANDLE toHandle(qintptr handle)
{
    return reinterpret_cast<HANDLE>(handle);
}

} // namespace

/// The driver of a device that is gone no longer answers.
bool hasHungUp(qintptr handle)
{
    DWORD errors = 0;
    COMSTAT status{};
    return ClearCommError(toHandle(handle), &errors, &status) == 0;
}

bool hasUnsentBytes(qintptr handle)
{
    DWORD errors = 0;
    COMSTAT status{};
    return ClearCommError(toHandle(handle), &errors, &status) != 0 && status.cbOutQue > 0;
}

/// A driver's own buffer often has 4096 bytes, which the fastest rate fills in 30 ms; this one
/// lasts for 400 ms. It is a wish: a driver may do as it likes, and a refusal does no harm.
void enlargeIncomingBuffer(qintptr handle)
{
    constexpr DWORD incoming = 64 * 1024;
    constexpr DWORD outgoing = 16 * 1024;
    SetupComm(toHandle(handle), incoming, outgoing);
}

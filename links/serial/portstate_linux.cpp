#include "links/serial/portstate.h"

#include <poll.h>
#include <sys/ioctl.h>

bool hasHungUp(qintptr handle)
{
    pollfd port{static_cast<int>(handle), POLLIN | POLLOUT, 0};
    return poll(&port, 1, 0) < 0 || (port.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0;
}

bool hasUnsentBytes(qintptr handle)
{
    int count = 0;
    return ioctl(static_cast<int>(handle), TIOCOUTQ, &count) == 0 && count > 0;
}

/// The kernel's buffer grows by itself.
void enlargeIncomingBuffer(qintptr /*handle*/) {}

#include "links/serial/portstate.h"

#include <poll.h>

bool hasHungUp(qintptr handle)
{
    pollfd port{static_cast<int>(handle), POLLIN | POLLOUT, 0};
    return poll(&port, 1, 0) < 0 || (port.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0;
}

/// The kernel's buffer grows by itself.
void enlargeIncomingBuffer(qintptr /*handle*/) {}

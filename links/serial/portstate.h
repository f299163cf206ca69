#pragma once

#include <QtGlobal>

/// Whether the device behind an open port's handle has gone.
bool hasHungUp(qintptr handle);

/// Whether the driver of an open port holds bytes that have not gone out yet.
bool hasUnsentBytes(qintptr handle);

/// Makes room in the driver of an open port for what comes in while the program is busy elsewhere,
/// where the system lets us.
void enlargeIncomingBuffer(qintptr handle);

#pragma once

#include <QtGlobal>

/// Whether the device behind an open port's handle has gone.
bool hasHungUp(qintptr handle);

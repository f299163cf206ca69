#pragma once

#include "links/openfailure.h"

/// Looks for what keeps this user from opening a device, by its path or the name of a port, without
/// another try at it. Nothing found gives no words.
OpenFailure examineDevice(const QString &name);

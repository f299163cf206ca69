#pragma once

#include "links/watch/watcheddevice.h"

#include <QByteArray>

#include <optional>

/// The device that a Windows broadcast (DEV_BROADCAST_HDR and what follows it) is about: a port, or
/// a device interface, with the name that stands in it. None when the bytes are not as many as the
/// broadcast's own size says, when it is of another type, or when it has no name.
std::optional<WatchedDevice> deviceInBroadcast(const QByteArray &broadcast);

/// What a broadcast must have before its own size may be believed, in bytes.
constexpr int broadcastHeaderSize = 12;

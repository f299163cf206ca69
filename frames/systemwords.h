#pragma once

#include <QtGlobal>

#include <array>

/// What the system and Qt say of a device or a file that fails and nobody translates, by which
/// `Messages::shown` finds it in the window's language. Whatever else they say is shown as it is.
inline constexpr std::array systemWords{
    QT_TRANSLATE_NOOP("Messages", "Operation not permitted"),
    QT_TRANSLATE_NOOP("Messages", "Permission denied"),
    QT_TRANSLATE_NOOP("Messages", "No such file or directory"),
    QT_TRANSLATE_NOOP("Messages", "Not a directory"),
    QT_TRANSLATE_NOOP("Messages", "Is a directory"),
    QT_TRANSLATE_NOOP("Messages", "File name too long"),
    QT_TRANSLATE_NOOP("Messages", "File too large"),
    QT_TRANSLATE_NOOP("Messages", "Too many open files"),
    QT_TRANSLATE_NOOP("Messages", "No space left on device"),
    QT_TRANSLATE_NOOP("Messages", "Disk quota exceeded"),
    QT_TRANSLATE_NOOP("Messages", "Read-only file system"),
    QT_TRANSLATE_NOOP("Messages", "Stale file handle"),
    QT_TRANSLATE_NOOP("Messages", "No such device"),
    QT_TRANSLATE_NOOP("Messages", "No such device or address"),
    QT_TRANSLATE_NOOP("Messages", "Device or resource busy"),
    QT_TRANSLATE_NOOP("Messages", "Resource temporarily unavailable"),
    QT_TRANSLATE_NOOP("Messages", "Input/output error"),
    QT_TRANSLATE_NOOP("Messages", "Inappropriate ioctl for device"),
    QT_TRANSLATE_NOOP("Messages", "Invalid argument"),
    QT_TRANSLATE_NOOP("Messages", "Broken pipe"),
    QT_TRANSLATE_NOOP("Messages", "Connection timed out"),
    QT_TRANSLATE_NOOP("Messages", "Device is already open"),
    QT_TRANSLATE_NOOP("Messages", "Device is not open"),
    QT_TRANSLATE_NOOP("Messages", "Device disappeared from the system"),
    QT_TRANSLATE_NOOP("Messages", "Error reading from device"),
    QT_TRANSLATE_NOOP("Messages", "Error writing to device"),
    QT_TRANSLATE_NOOP("Messages", "Operation timed out"),
    QT_TRANSLATE_NOOP("Messages", "Permission error while locking the device"),
    QT_TRANSLATE_NOOP("Messages", "Permission error while creating lock file"),
    QT_TRANSLATE_NOOP("Messages", "Failed to create a lock file for opening the device"),
};

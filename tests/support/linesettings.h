#pragma once

#include <QtGlobal>

/// How a terminal line is set, as far as a pseudo-terminal keeps it.
struct LineSettings
{
    /// In baud, custom rates included.
    quint32 baudRate = 0;
    bool twoStopBits = false;
};

/// Reads the settings of the line behind a file descriptor; zero baud when it is none.
LineSettings readLineSettings(int descriptor);

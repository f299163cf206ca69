#pragma once

#include <QByteArray>
#include <QTextCodec>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// Ends the program when a promise of the code under test is broken; the input is then kept.
inline void require(bool promise)
{
    if (!promise) {
        std::abort();
    }
}

/// The input of a run.
inline QByteArray fuzzInput(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), static_cast<int>(size)};
}

/// The local encoding is UTF-8 here, whatever the environment says.
inline void useUtf8()
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

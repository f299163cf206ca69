#include "runner/output.h"

#include <cstdio>

void Output::write(const QByteArray &bytes)
{
    if (bytes.isEmpty()) {
        return;
    }
    const auto size = static_cast<size_t>(bytes.size());
    const bool isWritten = std::fwrite(bytes.constData(), 1, size, stdout) == size;
    m_isGood = m_isGood && isWritten && std::fflush(stdout) == 0;
}

void complain(const QString &text)
{
    std::fputs(("tarnwick-run: " + text.toLocal8Bit() + '\n').constData(), stderr);
}

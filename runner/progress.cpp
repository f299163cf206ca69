#include "runner/progress.h"

#include <cstdio>

namespace {

constexpr qint64 pauseNs = 200000000;

} // namespace

void Progress::show(qint64 rows, qint64 nowNs)
{
    if (!m_isWanted || (m_isShown && nowNs - m_shownNs < pauseNs)) {
        return;
    }
    std::fprintf(stderr, "\r%lld rows", static_cast<long long>(rows));
    std::fflush(stderr);
    m_isShown = true;
    m_shownNs = nowNs;
}

void Progress::clear()
{
    if (m_isShown) {
        std::fputs("\r\x1B[K", stderr);
        m_isShown = false;
    }
}

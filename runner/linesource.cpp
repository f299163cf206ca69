#include "runner/linesource.h"

#include <utility>

void LineSource::take(const QByteArray &bytes)
{
    m_rest += bytes;
    for (int end = m_rest.indexOf('\n'); end >= 0; end = m_rest.indexOf('\n')) {
        const QByteArray line = m_rest.left(end);
        m_rest.remove(0, end + 1);
        emit arrived(line.endsWith('\r') ? line.left(line.size() - 1) : line);
    }
}

void LineSource::takeEnd()
{
    if (!m_rest.isEmpty()) {
        emit arrived(std::exchange(m_rest, {}));
    }
    emit ended();
}

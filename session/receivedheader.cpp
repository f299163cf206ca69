#include "session/receivedheader.h"

namespace {

/// A text that has not changed for this long is no longer being typed.
constexpr int typingMs = 1000;

} // namespace

ReceivedHeader::ReceivedHeader(QObject *parent)
    : QObject(parent)
{
    for (QTimer *timer : {&m_typing, &m_notice}) {
        timer->setSingleShot(true);
        timer->setTimerType(Qt::PreciseTimer);
    }
    m_typing.setInterval(typingMs);
    connect(&m_notice, &QTimer::timeout, this, &ReceivedHeader::unreadable);
}

void ReceivedHeader::setText(const QString &text)
{
    m_text = text;
    m_told = false;
    m_notice.stop();
}

void ReceivedHeader::noteTyping()
{
    m_typing.start();
}

StartBytes ReceivedHeader::startBytes()
{
    const std::optional<StartBytes> read = parseStartBytes(m_text);
    if (!read) {
        tellOnce();
    }
    return read.value_or(fallbackStartBytes);
}

void ReceivedHeader::tellOnce()
{
    if (!m_told) {
        m_told = true;
        m_notice.start(m_typing.isActive() ? m_typing.remainingTime() : 0);
    }
}

#include "receivedheader.h"

#include <QLineEdit>

namespace {

/// A text that has not changed for this long is no longer being typed.
constexpr int typingMs = 1000;

} // namespace

ReceivedHeader::ReceivedHeader(const QLineEdit &field, QObject *parent)
    : QObject(parent)
    , m_field(field)
{
    for (QTimer *timer : {&m_typing, &m_notice}) {
        timer->setSingleShot(true);
        timer->setTimerType(Qt::PreciseTimer);
    }
    m_typing.setInterval(typingMs);
    connect(&m_field, &QLineEdit::textChanged, this, &ReceivedHeader::onChanged);
    connect(&m_field, &QLineEdit::textEdited, &m_typing, qOverload<>(&QTimer::start));
    connect(&m_notice, &QTimer::timeout, this, &ReceivedHeader::unreadable);
}

StartBytes ReceivedHeader::startBytes()
{
    const std::optional<StartBytes> read = parseStartBytes(m_field.text());
    if (!read) {
        tellOnce();
    }
    return read.value_or(fallbackStartBytes);
}

void ReceivedHeader::onChanged()
{
    m_told = false;
    m_notice.stop();
}

void ReceivedHeader::tellOnce()
{
    if (!m_told) {
        m_told = true;
        m_notice.start(m_typing.isActive() ? m_typing.remainingTime() : 0);
    }
}

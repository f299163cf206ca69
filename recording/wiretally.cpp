#include "recording/wiretally.h"

void WireTally::add(const RecordEvent &event)
{
    if (!event.hasBytes()) {
        return;
    }
    Direction &direction = event.kind == RecordEvent::Kind::Sent ? m_sent : m_received;
    qint64 &pieces =
        event.kind == RecordEvent::Kind::Stray ? direction.sum.stray : direction.sum.frames;
    ++pieces;
    direction.sum.bytes += event.bytes.size();
    direction.hash.addData(event.bytes);
}

void WireTally::clear()
{
    clear(m_sent);
    clear(m_received);
}

WireSums WireTally::sums() const
{
    return {sumOf(m_sent), sumOf(m_received)};
}

void WireTally::clear(Direction &direction)
{
    direction.sum = {};
    direction.hash.reset();
}

DirectionSum WireTally::sumOf(const Direction &direction)
{
    DirectionSum sum = direction.sum;
    sum.sha256 = direction.hash.result().toHex();
    return sum;
}

#include "simulator/disturbance.h"

namespace {

constexpr int longestGarbage = 16;
constexpr int longestPauseMs = 5;
constexpr int mostCuts = 4;

} // namespace

Disturbance::Disturbance(const DeviceOptions &options)
    : m_firstStartByte(options.startBytes.first)
    , m_garbageEvery(options.garbageEvery)
    , m_random(options.seed)
{}

QByteArray Disturbance::withGarbage(const QByteArray &frame)
{
    if (m_garbageEvery == 0 || ++m_framesSinceGarbage < m_garbageEvery) {
        return frame;
    }
    m_framesSinceGarbage = 0;
    QByteArray garbage(m_random.bounded(1, longestGarbage + 1), '\0');
    for (char &byte : garbage) {
        byte = garbageByte();
    }
    return garbage + frame;
}

QVector<QByteArray> Disturbance::pieces(const QByteArray &block)
{
    QVector<QByteArray> pieces;
    QByteArray rest = block;
    const int cuts = m_random.bounded(1, mostCuts + 1);
    for (int i = 0; i < cuts && rest.size() > 1; ++i) {
        const int size = m_random.bounded(1, rest.size());
        pieces.append(rest.left(size));
        rest.remove(0, size);
    }
    pieces.append(rest);
    return pieces;
}

int Disturbance::pauseMs()
{
    return m_random.bounded(1, longestPauseMs + 1);
}

char Disturbance::garbageByte()
{
    // One of the 255 others, all alike.
    const int distance = m_random.bounded(1, 0x100);
    return static_cast<char>((m_firstStartByte + distance) & 0xFF);
}

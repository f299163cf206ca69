#pragma once

#include "simulator/deviceoptions.h"

#include <QByteArray>
#include <QRandomGenerator>
#include <QVector>

/// The random part of the simulated line: rubbish in front of frames, and the places where blocks
/// are cut. The same seed gives the same choices in the same order.
class Disturbance
{
public:
    explicit Disturbance(const DeviceOptions &options);

    /// What goes on the wire for the next frame: the frame, with 1 to 16 random bytes before it if
    /// it is its turn. The first start byte is not among them, so that no header can begin in them
    /// and a receiver still finds every frame.
    QByteArray withGarbage(const QByteArray &frame);

    /// The block cut into pieces of one or more bytes, at least two of them where it is long
    /// enough.
    QVector<QByteArray> pieces(const QByteArray &block);

    /// The time in ms between two pieces, 1 to 5.
    int pauseMs();

private:
    char garbageByte();

    quint8 m_firstStartByte = 0;
    int m_garbageEvery = 0;
    int m_framesSinceGarbage = 0;
    QRandomGenerator m_random;
};

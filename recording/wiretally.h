#pragma once

#include "recording/recordevent.h"
#include "recording/recordingfacts.h"

#include <QCryptographicHash>

/// Counts what goes over the wire, and hashes it.
class WireTally
{
public:
    /// Counts an event in. One without bytes changes nothing.
    void add(const RecordEvent &event);

    /// Begins anew.
    void clear();

    /// What was counted since the beginning.
    WireSums sums() const;

private:
    struct Direction
    {
        DirectionSum sum;
        QCryptographicHash hash{QCryptographicHash::Sha256};
    };

    static void clear(Direction &direction);
    static DirectionSum sumOf(const Direction &direction);

    Direction m_sent;
    Direction m_received;
};

#pragma once

#include "fakeframesettings.h"
#include "fakelink.h"
#include "sender.h"
#include "sendloop.h"

#include <QSignalSpy>

constexpr qint64 nsPerMs = 1000000;

/// A loop on a fake link; frames are their texts alone.
class LoopBench
{
public:
    LoopBench();

    void start(const QStringList &texts, int intervalMs);

    /// Starts the loop and runs its first pass.
    void run(const QStringList &texts, int intervalMs);

    /// What was written, block by block, in hex.
    QString written() const;

    /// The ns between a block and the one before it.
    qint64 gapBefore(int block) const;

    FakeFrameSettings settings;
    FakeLink link;
    Sender sender{settings};
    SendLoop loop{sender};
    QSignalSpy passEnded{&loop, &SendLoop::passEnded};
    QSignalSpy foundNothing{&loop, &SendLoop::foundNothing};
    QSignalSpy messages{&sender, &Sender::message};
    /// When the last pass ended, on the clock of the link.
    qint64 endedAtNs = 0;

    Q_DISABLE_COPY(LoopBench)
};

/// Whether a loop started now gets through these texts: by then every wait of a loop that was
/// started earlier with the same texts would be over.
bool runsThrough(const QStringList &texts, int intervalMs);

#pragma once

#include "fakeframesettings.h"
#include "fakelink.h"
#include "frames/sender.h"
#include "frames/sendloop.h"
#include "handclock.h"

#include <QSignalSpy>

/// A loop on a fake link and a clock moved by hand; frames are their texts alone.
class LoopBench
{
public:
    LoopBench();

    void start(const QStringList &texts, LoopTiming timing);

    /// Starts the loop and runs its first pass at once.
    void run(const QStringList &texts, LoopTiming timing);

    /// Runs each pass that is due from now on.
    void keepRunning();

    /// What was written, block by block, in hex.
    QString written() const;

    /// What was written since the last call, with the ms since the bench was made: "01@0 02@20".
    QString timetable();

    FakeFrameSettings settings;
    FakeLink link;
    HandClock clock;
    Sender sender{settings};
    SendLoop loop{sender, clock};
    QSignalSpy passDue{&loop, &SendLoop::passDue};
    QSignalSpy foundNothing{&loop, &SendLoop::foundNothing};
    QSignalSpy messages{&sender, &Sender::notice};

    Q_DISABLE_COPY(LoopBench)

private:
    qint64 m_madeAt = clock.now();
    QVector<qint64> m_writtenAt;
    int m_listed = 0;
};

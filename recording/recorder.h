#pragma once

#include "recording/recordingjob.h"

#include <QObject>

#include <functional>
#include <memory>

/// Records events into files in a thread of its own, so that nobody waits for a disk.
///
/// If the disk is too slow, up to 8 MiB of events wait for it. Further events are dropped and
/// counted.
class Recorder : public QObject
{
    Q_OBJECT

public:
    /// Makes the sink of a recording; called in the recorder's thread.
    using MakeSink = std::function<std::unique_ptr<RecordingSink>()>;

    /// Records into files of the system.
    explicit Recorder(QObject *parent = nullptr);
    explicit Recorder(MakeSink makeSink, QObject *parent = nullptr);
    /// Ends a recording as `finish` does.
    ~Recorder() override;

    /// Begins a recording; a running one is ended first. `changed` tells whether the file could be
    /// made.
    void start(const RecordingPlan &plan);

    /// Records an event; does nothing if no recording runs.
    void record(const RecordEvent &event);

    /// Ends the recording; `ended` follows when its file is complete and closed.
    void stop();

    /// Ends the recording and waits until its file is closed, for that many ms at most. Returns
    /// whether it is closed.
    bool finish(int patienceMs = 3000);

    /// Whether events are recorded: from `start` until `stop`, or until something goes wrong.
    bool isRecording() const { return m_isRecording; }

    /// The progress of the running recording, or of the last one.
    const RecordingStatus &status() const { return m_status; }

signals:
    /// The status has changed. Emitted a few times a second at most.
    void changed();

    /// The recording has ended: by itself, where the status has an error.
    void ended();

private:
    class Work;

    void takeStatus();

    MakeSink m_makeSink;
    std::shared_ptr<Work> m_work;
    bool m_isRecording = false;
    RecordingStatus m_status;
};

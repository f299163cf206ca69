#pragma once

#include "recording/recordingjob.h"

#include <QObject>

#include <functional>
#include <memory>

/// Records events into files in a thread of its own, so that nobody waits for a disk.
///
/// Where the disk is too slow, up to 8 MiB of events wait for it; what comes beyond them is dropped
/// and counted.
class Recorder : public QObject
{
    Q_OBJECT

public:
    /// Makes where a recording goes; called in its thread.
    using MakeSink = std::function<std::unique_ptr<RecordingSink>()>;

    /// Records into files of the system.
    explicit Recorder(QObject *parent = nullptr);
    explicit Recorder(MakeSink makeSink, QObject *parent = nullptr);
    /// Ends a recording as `finish` does.
    ~Recorder() override;

    /// Begins a recording; one that runs is ended before. Whether its file could be made is known
    /// when `changed` is emitted.
    void start(const RecordingPlan &plan);

    /// Takes in an event; without a recording nothing happens.
    void record(const RecordEvent &event);

    /// Ends the recording; `ended` follows when its file is closed in good order.
    void stop();

    /// Ends the recording and waits until its file is closed, for so many ms at most. Returns
    /// whether it is closed.
    bool finish(int patienceMs = 3000);

    /// Whether events are taken in: from `start` until `stop`, or until something goes wrong.
    bool isRecording() const { return m_isRecording; }

    /// How far the recording is, or how far the last one came.
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

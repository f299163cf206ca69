#include "recording/recorder.h"

#include "recording/eventqueue.h"
#include "recording/recordingfile.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QMutex>
#include <QMutexLocker>
#include <QWaitCondition>

#include <thread>
#include <utility>

namespace {

constexpr int passMs = 100;
constexpr int tellMs = 250;

} // namespace

/// What the thread of a recording shares with its owner. It lives as long as either needs it: a
/// thread that hangs in a dead disk outlives everybody.
class Recorder::Work
{
public:
    Work(Recorder &owner, RecordingPlan plan)
        : m_plan(std::move(plan))
        , m_makeSink(owner.m_makeSink)
        , m_owner(&owner)
    {}

    EventQueue &queue() { return m_queue; }

    /// The thread's whole life.
    void run();

    RecordingStatus status()
    {
        const QMutexLocker locker(&m_lock);
        return m_status;
    }

    bool isOver()
    {
        const QMutexLocker locker(&m_lock);
        return m_isOver;
    }

    /// From now on nobody is told anything.
    void leaveOwner()
    {
        const QMutexLocker locker(&m_lock);
        m_owner = nullptr;
    }

    bool waitForEnd(int patienceMs)
    {
        const QDeadlineTimer deadline(patienceMs);
        const QMutexLocker locker(&m_lock);
        while (!m_isOver && m_end.wait(&m_lock, deadline)) {
        }
        return m_isOver;
    }

private:
    void writeBatches(RecordingJob &job);
    void publish(const RecordingStatus &status, bool isOver);

    const RecordingPlan m_plan;
    const MakeSink m_makeSink;
    EventQueue m_queue;
    QMutex m_lock;
    QWaitCondition m_end;
    Recorder *m_owner;
    RecordingStatus m_status;
    bool m_isOver = false;
};

void Recorder::Work::run()
{
    const std::unique_ptr<RecordingSink> sink = m_makeSink();
    RecordingJob job(m_plan, *sink);
    if (job.begin(ArrivalTime::now())) {
        publish(job.status(), false);
        writeBatches(job);
    }
    publish(job.status(), true);
}

void Recorder::Work::writeBatches(RecordingJob &job)
{
    QElapsedTimer sinceTold;
    sinceTold.start();
    while (job.status().isRunning) {
        const EventQueue::Batch batch = m_queue.take(passMs);
        for (const RecordEvent &event : batch.events) {
            job.take(event);
        }
        if (batch.droppedEvents > 0) {
            job.noteDropped(batch.droppedEvents, batch.droppedBytes, ArrivalTime::now());
        }
        job.pass(ArrivalTime::now());
        if (batch.isLast) {
            job.end(ArrivalTime::now());
        } else if (sinceTold.hasExpired(tellMs)) {
            sinceTold.start();
            publish(job.status(), false);
        }
    }
}

void Recorder::Work::publish(const RecordingStatus &status, bool isOver)
{
    const QMutexLocker locker(&m_lock);
    m_status = status;
    m_isOver = isOver;
    if (isOver) {
        m_end.wakeAll();
    }
    if (m_owner != nullptr) {
        QMetaObject::invokeMethod(
            m_owner, [owner = m_owner] { owner->takeStatus(); }, Qt::QueuedConnection);
    }
}

Recorder::Recorder(QObject *parent)
    : Recorder([] { return std::make_unique<RecordingFile>(); }, parent)
{}

Recorder::Recorder(MakeSink makeSink, QObject *parent)
    : QObject(parent)
    , m_makeSink(std::move(makeSink))
{}

Recorder::~Recorder()
{
    finish();
    if (m_work) {
        m_work->leaveOwner();
    }
}

void Recorder::start(const RecordingPlan &plan)
{
    finish();
    if (m_work) {
        m_work->leaveOwner();
    }
    m_status = {};
    m_status.path = plan.path;
    m_work = std::make_shared<Work>(*this, plan);
    m_isRecording = true;
    std::thread([work = m_work] { work->run(); }).detach();
}

void Recorder::record(const RecordEvent &event)
{
    if (m_isRecording) {
        m_work->queue().put(event);
    }
}

void Recorder::stop()
{
    m_isRecording = false;
    if (m_work) {
        m_work->queue().close();
    }
}

bool Recorder::finish(int patienceMs)
{
    if (!m_work) {
        return true;
    }
    stop();
    const bool isClosed = m_work->waitForEnd(patienceMs);
    takeStatus();
    return isClosed;
}

void Recorder::takeStatus()
{
    // What was posted by a recording before this one finds nothing to tell.
    if (!m_work) {
        return;
    }
    m_status = m_work->status();
    const bool isOver = m_work->isOver();
    if (isOver) {
        m_isRecording = false;
        m_work.reset();
    }
    emit changed();
    if (isOver) {
        emit ended();
    }
}

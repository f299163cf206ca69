#pragma once

#include <QByteArray>

#include <functional>
#include <sys/types.h>

/// A piece of work in a process of its own, so that its processor time counts apart from ours. It
/// is made before the application object, waits for its start, and hands its result back.
class ChildProcess
{
public:
    using Work = std::function<QByteArray()>;

    explicit ChildProcess(const Work &work);
    ~ChildProcess();
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    /// Lets the work begin.
    void start();

    /// Can be read from as soon as the work is done.
    int resultDescriptor() const { return m_result; }

    /// Waits for the work to be done.
    QByteArray result();

private:
    pid_t m_process = -1;
    int m_start = -1;
    int m_result = -1;
};

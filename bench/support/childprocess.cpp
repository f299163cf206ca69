#include "childprocess.h"

#include <QFile>

#include <array>
#include <csignal>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// A new process has no use for what its parent would clean up at exit.
[[noreturn]] void run(const ChildProcess::Work &work, int start, int result)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    char go = 0;
    if (read(start, &go, 1) == 1) {
        QFile out;
        out.open(result, QIODevice::WriteOnly);
        out.write(work());
        out.close();
    }
    _exit(0);
}

} // namespace

ChildProcess::ChildProcess(const Work &work)
{
    std::array<int, 2> start{};
    std::array<int, 2> result{};
    if (pipe(start.data()) != 0 || pipe(result.data()) != 0) {
        return;
    }
    m_process = fork();
    if (m_process == 0) {
        close(start.at(1));
        close(result.at(0));
        run(work, start.at(0), result.at(1));
    }
    close(start.at(0));
    close(result.at(1));
    m_start = start.at(1);
    m_result = result.at(0);
}

ChildProcess::~ChildProcess()
{
    close(m_start);
    close(m_result);
    if (m_process > 0) {
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }
}

void ChildProcess::start()
{
    const char go = 1;
    if (write(m_start, &go, 1) != 1) {
        qFatal("The child process has gone.");
    }
}

QByteArray ChildProcess::result()
{
    QFile in;
    in.open(m_result, QIODevice::ReadOnly);
    return in.readAll();
}

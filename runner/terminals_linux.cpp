#include "runner/output.h"

#include <csignal>
#include <unistd.h>

void outliveReaders()
{
    std::signal(SIGPIPE, SIG_IGN);
}

bool isOutputTerminal()
{
    return isatty(STDOUT_FILENO) != 0;
}

bool isErrorTerminal()
{
    return isatty(STDERR_FILENO) != 0;
}

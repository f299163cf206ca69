#include "runner/output.h"

#include <cstdio>
#include <io.h>

/// It is one here anyway.
void outliveReaders() {}

bool isOutputTerminal()
{
    return _isatty(_fileno(stdout)) != 0;
}

bool isErrorTerminal()
{
    return _isatty(_fileno(stderr)) != 0;
}

#include "shortpause.h"

#include <windows.h>

void shortPause(unsigned milliseconds)
{
    Sleep(milliseconds);
}

#include "linesettings.h"

// The kernel's own header knows custom rates; it can't stand in one file with <termios.h>.
#include <asm/termbits.h>
#include <sys/ioctl.h>

LineSettings readLineSettings(int descriptor)
{
    termios2 line{};
    if (ioctl(descriptor, TCGETS2, &line) != 0) {
        return {};
    }
    return {line.c_ospeed, (line.c_cflag & CSTOPB) != 0};
}

#include "shortpause.h"

#include <QThread>

void shortPause(unsigned milliseconds)
{
    QThread::msleep(milliseconds);
}

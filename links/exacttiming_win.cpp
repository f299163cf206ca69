#include "links/exacttiming.h"

#include <windows.h>

namespace {

constexpr UINT resolutionMs = 1;

} // namespace

void ExactTiming::request()
{
    timeBeginPeriod(resolutionMs);
}

void ExactTiming::release()
{
    timeEndPeriod(resolutionMs);
}

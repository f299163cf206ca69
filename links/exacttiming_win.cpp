#include "exacttiming.h"

#include <windows.h>

namespace {

constexpr UINT resolutionMs = 1;

} // namespace

ExactTiming::ExactTiming()
{
    timeBeginPeriod(resolutionMs);
}

ExactTiming::~ExactTiming()
{
    timeEndPeriod(resolutionMs);
}

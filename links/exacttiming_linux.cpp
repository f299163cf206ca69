#include "exacttiming.h"

// The system is exact enough by itself.

ExactTiming::ExactTiming() = default;

ExactTiming::~ExactTiming() = default;

#pragma once

/// Lets the calling thread rest for so many milliseconds.
void shortPause(unsigned milliseconds);

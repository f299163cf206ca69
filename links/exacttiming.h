#pragma once

/// While one of these exists, pauses and timers end within about a millisecond of their time.
/// Systems that rest by themselves for up to 16 ms at a time, as Windows does, are asked for it;
/// that costs a little power, so it is held only while a link is open.
class ExactTiming
{
public:
    ExactTiming() { request(); }
    ~ExactTiming() { release(); }
    ExactTiming(const ExactTiming &) = delete;
    ExactTiming &operator=(const ExactTiming &) = delete;

private:
    static void request();
    static void release();
};

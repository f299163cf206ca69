#pragma once

#include <QtGlobal>

/// Counts the passes of something that is repeated, and knows which one is the last.
class PassCount
{
public:
    /// As a number of passes: without end.
    static constexpr int endless = 0;

    explicit PassCount(int wanted = endless)
        : m_wanted(wanted)
    {}

    /// The pass that has begun last, from 1; 0 before the first one.
    qint64 current() const { return m_current; }

    /// Another pass begins.
    void begin() { ++m_current; }

    /// Whether no other pass may follow.
    bool isLast() const { return m_wanted != endless && m_current >= m_wanted; }

private:
    qint64 m_wanted;
    qint64 m_current = 0;
};

#pragma once

#include "expectations/bytepattern.h"

#include <optional>

/// A frame as an expectation names it, by its payload.
struct ExpectedFrame
{
    BytePattern pattern;
    /// In ms since the row went out, or since the frame before; nothing for the usual time.
    std::optional<int> withinMs;
};

/// What a row has to be answered with.
struct Expectation
{
    /// The frames that have to come, in their order. Each entry lists what is as good as another.
    QVector<QVector<ExpectedFrame>> replies;
    /// What must not come while the row waits.
    QVector<ExpectedFrame> forbidden;

    bool isEmpty() const { return replies.isEmpty() && forbidden.isEmpty(); }
};

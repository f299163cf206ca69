#pragma once

#include "log/replytimes.h"

#include <QString>

/// How a loop went, or goes.
struct LoopFigures
{
    qint64 passes = 0;
    qint64 received = 0;
    Replies replies;
    /// By how much frames went out later than planned.
    Durations lateness;
};

/// What the tip of a row says about its answers, in lines; empty where nothing of it was sent.
QString rowRepliesText(const Replies *replies);

/// What the status line says about a loop, in short lines that stay where they are while it runs.
QString loopFiguresText(const LoopFigures &figures);

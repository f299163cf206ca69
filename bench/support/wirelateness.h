#pragma once

#include "testport.h"

#include <QByteArray>
#include <QString>
#include <QVector>

/// Frames that go out at an interval: one, and then as many as there are gaps.
struct PacedFrames
{
    int intervalMs;
    int gaps;
};

// Times are in ns of the monotonic clock, as bytes, to be handed from one process to another.

/// Whether the far end of a wire answers each frame, with the same one.
enum class FarEnd { Reads, Answers };

/// Notes when each frame is in at the far end of a wire.
QByteArray noteArrivals(TestPort &port, PacedFrames frames, FarEnd farEnd);

/// The bare program: writes the frames to a port at times planned ahead. Notes when it did so.
QByteArray writeFrames(const QString &port, PacedFrames frames);

/// The times that another process has noted.
QVector<qint64> timesIn(const QByteArray &noted);

/// How late each frame is, in ms, by a plan that starts anew where one is late by more than a
/// millisecond.
QVector<double> lateness(const QVector<qint64> &times, int intervalMs);

/// The mean gap between frames, in ms.
double meanGap(const QVector<qint64> &times);

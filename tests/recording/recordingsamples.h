#pragma once

#include "recording/recordevent.h"
#include "recording/recordingfacts.h"
#include "recording/recordingwriter.h"

#include <QVector>

/// 2026-11-21T21:44:01.123456Z.
constexpr qint64 sampleUtcUs = 1795297441123456;
/// On the other clock, at the same moment.
constexpr qint64 sampleMonoNs = 5000000000;

/// So many microseconds after that moment.
ArrivalTime sampleTime(qint64 us = 0);

/// An event at that time; its bytes are given in hex digits.
RecordEvent sampleEvent(RecordEvent::Kind kind, const char *digits = "", qint64 us = 0);

/// One event of each kind, with everything that an event may have.
QVector<RecordEvent> sampleEvents();

RecordingHead sampleHead();

/// Whether both say the same.
bool areSame(const RecordEvent &one, const RecordEvent &other);
bool areSame(const QVector<RecordEvent> &one, const QVector<RecordEvent> &other);

/// A whole file: head, events, and the tail that belongs to them.
QByteArray sampleFile(RecordingFormat format, const QVector<RecordEvent> &events);
/// The same without a tail.
QByteArray sampleFileWithoutTail(RecordingFormat format, const QVector<RecordEvent> &events);

/// What a reader makes of a file.
struct ReadFile
{
    RecordingHead head;
    QVector<RecordEvent> events;
    bool hasTail = false;
    RecordingTail tail;
    bool isTorn = false;
    QString error;
};

ReadFile readBytes(const QByteArray &file);
ReadFile readPath(const QString &path);

#pragma once

#include "frames/framebuilder.h"
#include "runner/runoptions.h"
#include "runner/testfile.h"

/// A row that is sent, or a pause.
struct PlannedRow
{
    int number = 0;
    QString description;
    /// As it goes over the wire; a pause has none.
    QByteArray frame;
    int pauseMs = 0;
    Expectation expectation;

    bool isPause() const { return frame.isEmpty(); }
};

/// What is sent of one file, and how.
struct FilePlan
{
    QString name;
    FrameLayout layout;
    int replyTimeoutMs = 500;
    int intervalMs = 0;
    int cycleDelayMs = 0;
    /// The silence that ends a frame which nothing else ends.
    int gapMs = 5;
    QVector<PlannedRow> rows;

    bool hasSomethingToSend() const;
};

/// What a run sends.
struct RunPlan
{
    QVector<FilePlan> files;
    RunRules rules;

    bool hasSomethingToSend() const;
    /// Whether rows are sent at times of their own, not as soon as the row before is done.
    bool keepsIntervals() const;
};

/// The settings in force: those of `first`, and where it leaves something open those of `second`.
FileSettings merged(const FileSettings &first, const FileSettings &second);

/// What is sent of a file, without its rows.
FilePlan emptyPlan(const QString &name, const FileSettings &settings);

/// What a row sends; a row that is neither a pause nor makes a frame has nothing.
PlannedRow plannedRow(const TestRow &row, const FrameLayout &layout);

/// What is sent of a file. A chosen row that makes no frame is a fault.
FilePlan planFile(const TestFile &file, const FileSettings &settings, const RowChoice &choice,
                  QVector<FileFault> &faults);

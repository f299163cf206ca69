#pragma once

#include <QString>

struct CsvExport;
struct RecordingStatus;

/// How far a recording is, like "2.4 MB, 18204 events": while it runs, and what it has come to
/// afterwards. What was dropped, or why it has stopped by itself, comes first.
QString describeRecording(const RecordingStatus &status, bool isRecording);

/// That a recording has stopped by itself, and why.
QString whyRecordingStopped(const RecordingStatus &status);

/// What came of an export into the file of that name.
QString describeExport(const CsvExport &outcome, const QString &fileName);

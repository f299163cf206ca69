#pragma once

#include "recording/recordingfacts.h"
#include "recording/wiretally.h"
#include "runner/report.h"

#include <QJsonObject>

#include <functional>

/// A JSON object a line: those of a recording, and among them the verdicts.
class JsonReport : public Report
{
public:
    /// The head is asked for when the report begins, the time with each line that is no event.
    JsonReport(std::function<RecordingHead()> head, std::function<ArrivalTime()> now);

    QByteArray opening() override;
    QByteArray file(const QString &name, int pass) override;
    QByteArray event(const RecordEvent &event) override;
    QByteArray row(const RowResult &result) override;
    QByteArray closing(const RunSummary &summary, RunEnd end) override;

private:
    QByteArray timed(QJsonObject object) const;

    std::function<RecordingHead()> m_head;
    std::function<ArrivalTime()> m_now;
    WireTally m_tally;
    QString m_file;
};

/// The verdict on a row as an object.
QJsonObject jsonOf(const RowResult &result);

/// An object as a line.
QByteArray jsonLine(const QJsonObject &object);

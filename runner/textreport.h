#pragma once

#include "runner/report.h"

/// A line for each row, and a closing line.
class TextReport : public Report
{
public:
    enum class Detail { Failures, Rows, Traffic };

    TextReport(Detail detail, bool isColoured);

    QByteArray file(const QString &name, int pass) override;
    QByteArray traffic(const LogRecord &record) override;
    QByteArray row(const RowResult &result) override;
    QByteArray closing(const RunSummary &summary, RunEnd end) override;

private:
    QString coloured(const QString &text, int colour) const;
    QString shownVerdict(const RowResult &result) const;

    Detail m_detail;
    bool m_isColoured;
    QString m_fileLine;
};

/// A run in one line: rows, replies, failures, times.
QString summaryText(const RunSummary &summary);

#pragma once

#include "runner/report.h"

/// The Test Anything Protocol, version 14: a test for each row.
class TapReport : public Report
{
public:
    QByteArray opening() override;
    QByteArray file(const QString &name, int pass) override;
    QByteArray row(const RowResult &result) override;
    QByteArray closing(const RunSummary &summary, RunEnd end) override;

private:
    qint64 m_count = 0;
};

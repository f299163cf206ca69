#pragma once

#include "runner/report.h"

/// The Test Anything Protocol: a test for each row. What it says is that of version 14; it calls
/// itself 13, since harnesses in use refuse a higher number.
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

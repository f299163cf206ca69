#pragma once

#include "runner/report.h"

#include <QVector>

/// JUnit XML: a suite for each file, a case for each row.
///
/// How many cases a suite has is told in front of them, and known behind them. So each suite begins
/// with room for the numbers, and `corrections` tells what belongs there.
class JunitReport : public Report
{
public:
    /// Bytes that belong at a place of what was given out.
    struct Correction
    {
        qint64 position = 0;
        QByteArray bytes;
    };

    QByteArray opening() override;
    QByteArray file(const QString &name, int pass) override;
    QByteArray row(const RowResult &result) override;
    QByteArray closing(const RunSummary &summary, RunEnd end) override;

    /// What has become known since it was asked last.
    QVector<Correction> takeCorrections();

private:
    struct Counts
    {
        qint64 tests = 0;
        qint64 failures = 0;
        qint64 errors = 0;
        qint64 replyNs = 0;
    };

    static QByteArray textOf(const Counts &counts);
    QByteArray given(const QByteArray &bytes);
    QByteArray endOfSuite();

    QVector<Correction> m_corrections;
    QByteArray m_suite;
    bool m_isInSuite = false;
    Counts m_counts;
    qint64 m_countsPosition = 0;
    qint64 m_position = 0;
};

#pragma once

#include "runner/report.h"

#include <QJsonObject>

/// A JSON object a line: what went over the wire, and the verdicts.
class JsonReport : public Report
{
public:
    QByteArray file(const QString &name, int pass) override;
    QByteArray traffic(const LogRecord &record) override;
    QByteArray row(const RowResult &result) override;
    QByteArray closing(const RunSummary &summary, RunEnd end) override;

private:
    QString m_file;
};

/// The verdict on a row as an object.
QJsonObject jsonOf(const RowResult &result);

/// An object as a line.
QByteArray jsonLine(const QJsonObject &object);

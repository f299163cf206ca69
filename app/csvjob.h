#pragma once

#include "recording/csvexport.h"

#include <QObject>
#include <QThread>

#include <memory>

/// Exports a recording in a thread of its own, since a large one takes seconds.
class CsvJob : public QObject
{
    Q_OBJECT

public:
    explicit CsvJob(QObject *parent = nullptr);
    /// Gives up an export that is under way; its file is not made then.
    ~CsvJob() override;

    /// Begins to export the recording into that file, which it replaces when all went well. False
    /// while another export is under way.
    bool start(const QString &recording, const QString &csv);

signals:
    /// The export has come to its end.
    void finished(const CsvExport &outcome, const QString &csv);

private:
    std::unique_ptr<QThread> m_thread;
};

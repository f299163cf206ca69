#pragma once

#include "runner/junitreport.h"

#include <QSaveFile>

/// A JUnit report in a file, which is there when the run is over, or not at all.
class JunitFile
{
public:
    explicit JunitFile(const QString &path)
        : m_file(path)
    {}

    /// Begins the file; false if that is not possible.
    bool open();

    void file(const QString &name, int pass);
    void row(const RowResult &result);

    /// Ends the file; false if not all of it was written.
    bool finish(const RunSummary &summary, RunEnd end);

    QString errorText() const { return m_file.errorString(); }

private:
    void write(const QByteArray &bytes);
    void correct();

    QSaveFile m_file;
    JunitReport m_report;
};

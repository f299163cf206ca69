#include "runner/junitfile.h"

bool JunitFile::open()
{
    if (!m_file.open(QIODevice::WriteOnly)) {
        return false;
    }
    write(m_report.opening());
    return true;
}

void JunitFile::file(const QString &name, int pass)
{
    write(m_report.file(name, pass));
    correct();
}

void JunitFile::row(const RowResult &result)
{
    write(m_report.row(result));
}

bool JunitFile::finish(const RunSummary &summary, RunEnd end)
{
    write(m_report.closing(summary, end));
    correct();
    return m_file.commit();
}

/// What fails is remembered by the file, which then doesn't come about.
void JunitFile::write(const QByteArray &bytes)
{
    m_file.write(bytes);
}

void JunitFile::correct()
{
    const qint64 end = m_file.pos();
    for (const JunitReport::Correction &correction : m_report.takeCorrections()) {
        m_file.seek(correction.position);
        m_file.write(correction.bytes);
    }
    m_file.seek(end);
}

#pragma once

#include "recording/recordingsink.h"

#include <QFile>

/// Files of the system.
class RecordingFile : public RecordingSink
{
public:
    Created create(const QString &path) override;
    bool write(const QByteArray &bytes) override;
    bool sync() override;
    bool isThere() const override;
    std::optional<qint64> freeBytes() const override;
    void close() override { m_file.close(); }
    QString error() const override { return m_error; }

private:
    QFile m_file;
    QString m_error;
};

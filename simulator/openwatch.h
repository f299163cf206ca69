#pragma once

#include "system/filedescriptor.h"

#include <QObject>
#include <QString>

/// Knows whether anybody has a file open, going by who opens and closes it from now on.
class OpenWatch : public QObject
{
    Q_OBJECT

public:
    /// Where the system can't watch the file, it counts as open.
    explicit OpenWatch(const QString &path, QObject *parent = nullptr);

    bool isOpen() const { return !m_events.isValid() || m_openings > 0; }

    /// Takes in what has happened up to now, without waiting for the event loop.
    void update();

signals:
    /// The first one has opened the file.
    void opened();

    /// The last one has closed the file.
    void closed();

private:
    void count(quint32 eventMask);

    FileDescriptor m_events;
    int m_openings = 0;
};

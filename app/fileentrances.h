#pragma once

#include "app/filedrop.h"
#include "app/recentfiles.h"

#include <QObject>

class ListFiles;
class StatusLine;
class WindowMemory;

/// The ways to a command file beside the button that loads: dropping it on the window, and choosing
/// it among the last ones. Both ask before a modified list is replaced.
class FileEntrances : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this.
    FileEntrances(QPushButton &loadButton, ListFiles &files, StatusLine &status,
                  QObject *parent = nullptr);

    /// The last files are those of the run before, and are kept for the next one. The memory must
    /// outlive this.
    void remember(WindowMemory &memory);

private:
    void takeDropped(const QList<QUrl> &urls);

    QPushButton &m_loadButton;
    ListFiles &m_files;
    StatusLine &m_status;
    FileDrop m_drop;
    RecentFiles m_recent;
};

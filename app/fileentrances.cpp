#include "app/fileentrances.h"

#include "app/listfiles.h"
#include "app/statusline.h"
#include "app/windowmemory.h"

#include <QPushButton>

FileEntrances::FileEntrances(QPushButton &loadButton, ListFiles &files, StatusLine &status,
                             QObject *parent)
    : QObject(parent)
    , m_loadButton(loadButton)
    , m_files(files)
    , m_status(status)
    , m_drop(*loadButton.window())
    , m_recent(loadButton)
{
    connect(&m_drop, &FileDrop::dropped, this, &FileEntrances::takeDropped);
    connect(&m_recent, &RecentFiles::chosen, &m_files, &ListFiles::loadFrom);
    connect(&m_files, &ListFiles::stored, &m_recent, &RecentFiles::note);
}

void FileEntrances::remember(WindowMemory &memory)
{
    m_recent.setFiles(memory.recentFiles());
    connect(&m_recent, &RecentFiles::changed, this,
            [&memory](const QStringList &files) { memory.setRecentFiles(files); });
}

void FileEntrances::takeDropped(const QList<QUrl> &urls)
{
    const DroppedFile file = commandFileAmong(urls);
    if (!m_loadButton.isEnabled()) {
        m_status.tell(tr("Not loaded, as the loop is running."));
    } else if (file.path.isEmpty()) {
        m_status.tell(file.refusal);
    } else {
        m_files.loadFrom(file.path);
    }
}

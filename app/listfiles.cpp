#include "app/listfiles.h"

#include "app/boxes.h"
#include "app/datafolder.h"
#include "app/liststate.h"
#include "app/statusline.h"
#include "commands/commandtable.h"
#include "files/settings.h"
#include "log/logtexts.h"
#include "log/recordlog.h"

#include <QWidget>

ListFiles::ListFiles(QWidget &window, CommandTable &commands, ListState &list, const RecordLog &log,
                     StatusLine &status)
    : QObject(&window)
    , m_commands(commands)
    , m_list(list)
    , m_log(log)
    , m_status(status)
    , m_actions(&window, dataFolder(), sources())
    , m_recovery(dataFolder(), m_list, [this] { return m_commands.rows(); })
{
    followActions();
}

void ListFiles::save()
{
    m_commands.takeInEdit();
    m_actions.saveCommands();
}

void ListFiles::saveIfWanted()
{
    m_commands.takeInEdit();
    if (m_list.isModified() && askToSaveCommands()) {
        save();
    }
}

void ListFiles::loadFrom(const QString &path)
{
    m_commands.takeInEdit();
    if (mayReplaceList()) {
        m_actions.loadCommandFile(path);
    }
}

/// Whoever wants the list saved, and then closes the dialog or has no room for it, keeps it.
bool ListFiles::mayReplaceList()
{
    if (!m_list.isModified()) {
        return true;
    }
    const UnsavedCommands decision = askAboutUnsavedCommands();
    if (decision == UnsavedCommands::Save) {
        save();
    }
    return decision == UnsavedCommands::Discard || !m_list.isModified();
}

void ListFiles::takeFolders(const Settings &settings)
{
    m_actions.setLastLoadFolder(settings.lastLoadPath);
    m_actions.setLastSaveFolder(settings.lastSavePath);
}

void ListFiles::noteFolders(Settings &settings) const
{
    settings.lastLoadPath = m_actions.lastLoadFolder();
    settings.lastSavePath = m_actions.lastSaveFolder();
}

void ListFiles::offerLeftBehind()
{
    m_leftBehind = m_recovery.leftBehind();
    if (!m_leftBehind.isEmpty()) {
        m_status.offer(tr("A command list was not saved when the program ended."),
                       tr("Load it..."));
    }
}

void ListFiles::keep()
{
    m_commands.takeInEdit();
    m_recovery.keep();
}

FileSources ListFiles::sources() const
{
    return {[this] { return m_commands.rows(); }, [this] { return textsOf(m_log.records()); }};
}

void ListFiles::followActions()
{
    connect(&m_status, &StatusLine::accepted, this,
            [this] { m_actions.loadCommandsAt(m_leftBehind); });
    connect(&m_actions, &FileActions::notice, this, &ListFiles::notice);
    connect(&m_actions, &FileActions::told, &m_status, &StatusLine::tell);
    connect(&m_actions, &FileActions::commandsRead, &m_commands, &CommandTable::replaceRows);
    connect(&m_actions, &FileActions::commandsStored, this, [this](const QString &path) {
        m_list.setStored(path);
        m_recovery.discard();
        emit stored(path);
    });
    connect(&m_actions, &FileActions::commandsRecovered, this, &ListFiles::takeRecovered);
    connect(&m_actions, &FileActions::overwriting, this, [this] { m_recovery.write(); });
}

/// Its file goes, so the list is in none.
void ListFiles::takeRecovered(const QString &path)
{
    m_list.setNew();
    m_list.setModified();
    m_recovery.takeOver(path);
    m_status.withdrawOffer();
}

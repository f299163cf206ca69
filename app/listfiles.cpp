#include "app/listfiles.h"

#include "app/datafolder.h"
#include "app/liststate.h"
#include "app/settings.h"
#include "app/statusline.h"
#include "commands/commandtable.h"
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
    , m_actions(&window, dataFolder(), hooks())
    , m_recovery(dataFolder(), m_list, [this] { return m_commands.rows(); })
{}

void ListFiles::save()
{
    m_commands.takeInEdit();
    m_actions.saveCommands();
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
    const QString path = m_recovery.leftBehind();
    if (!path.isEmpty()) {
        m_status.offer(tr("A command list was not saved when the program ended."), tr("Load it..."),
                       [this, path] { m_actions.loadCommandsAt(path); });
    }
}

FileActionHooks ListFiles::hooks()
{
    FileActionHooks hooks;
    hooks.showMessage = [this](const QString &text) { emit notice(text); };
    hooks.commands = [this] { return m_commands.rows(); };
    hooks.replaceCommands = [this](const auto &rows) { m_commands.replaceRows(rows); };
    hooks.commandsStored = [this](const QString &path) {
        m_list.setStored(path);
        m_recovery.discard();
    };
    hooks.commandsRecovered = [this](const QString &path) { takeRecovered(path); };
    hooks.beforeOverwriting = [this] { m_recovery.write(); };
    hooks.tell = [this](const QString &text) { m_status.tell(text); };
    hooks.messages = [this] { return textsOf(m_log.records()); };
    return hooks;
}

/// Its file goes, so the list is in none.
void ListFiles::takeRecovered(const QString &path)
{
    m_list.setNew();
    m_list.setModified();
    m_recovery.takeOver(path);
    m_status.withdrawOffer();
}

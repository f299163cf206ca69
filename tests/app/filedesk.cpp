#include "filedesk.h"

#include "testfiles.h"

FileDesk::FileDesk()
    : actions(&window, dir.path(), hooks())
{
    questions.answerWith(QMessageBox::Yes);
}

QByteArray FileDesk::storedFolders() const
{
    return contentOf(path(QStringLiteral("lastCommand_path.ini")));
}

FileActionHooks FileDesk::hooks()
{
    FileActionHooks hooks;
    hooks.showMessage = [this](const QString &text) {
        folderAtMessage = actions.lastLoadFolder();
        events.append("message: " + text);
    };
    hooks.commands = [this] { return rows; };
    hooks.replaceCommands = [this](const QVector<CommandRow> &loaded) {
        rows = loaded;
        events.append(QStringLiteral("%1 rows").arg(loaded.size()));
    };
    hooks.commandsStored = [this](const QString &path) { events.append("stored: " + path); };
    hooks.commandsRecovered = [this](const QString &path) { events.append("recovered: " + path); };
    hooks.beforeOverwriting = [this] { events.append(QStringLiteral("about to be overwritten")); };
    hooks.tell = [this](const QString &text) { events.append("told: " + text); };
    hooks.messages = [this] { return messages; };
    return hooks;
}

QByteArray folderFile(const QString &loadFolder, const QString &saveFolder)
{
    return "\xEF\xBB\xBF" + loadFolder.toUtf8() + '\n' + saveFolder.toUtf8() + '\n';
}

CommandRow rowWith(const QString &description)
{
    CommandRow row = emptyRow();
    row.description = description;
    return row;
}

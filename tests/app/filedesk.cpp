#include "filedesk.h"

#include "testfiles.h"

FileDesk::FileDesk()
    : actions(&window, dir.path(), {[this] { return rows; }, [this] { return messages; }})
{
    noteEvents();
    questions.answerWith(QMessageBox::Yes);
}

QByteArray FileDesk::storedFolders() const
{
    return contentOf(path(QStringLiteral("lastCommand_path.ini")));
}

void FileDesk::noteEvents()
{
    const auto note = [this](const char *prefix) {
        return [this, prefix](const QString &text) { events.append(prefix + text); };
    };
    QObject::connect(&actions, &FileActions::notice, [this](const QString &text) {
        folderAtMessage = actions.lastLoadFolder();
        events.append("message: " + text);
    });
    QObject::connect(&actions, &FileActions::commandsRead,
                     [this](const QVector<CommandRow> &loaded) {
                         rows = loaded;
                         events.append(QStringLiteral("%1 rows").arg(loaded.size()));
                     });
    QObject::connect(&actions, &FileActions::commandsStored, note("stored: "));
    QObject::connect(&actions, &FileActions::commandsRecovered, note("recovered: "));
    QObject::connect(&actions, &FileActions::overwriting,
                     [this] { events.append(QStringLiteral("about to be overwritten")); });
    QObject::connect(&actions, &FileActions::told, note("told: "));
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

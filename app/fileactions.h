#pragma once

#include "commands/commandrow.h"
#include "files/messagefile.h"

#include <QObject>
#include <QVector>

#include <functional>

class QWidget;
struct CommandFile;

/// What there is to save, asked for when the file is chosen.
struct FileSources
{
    std::function<QVector<CommandRow>()> commands;
    std::function<QVector<MessageRow>()> messages;
};

/// Loading and saving as the user sees it: asks for the file, does the work, tells what went wrong,
/// and remembers the folders for the next time.
class FileActions : public QObject
{
    Q_OBJECT

public:
    /// Dialogs open above the given window. The record of the folders is kept in the data folder.
    FileActions(QWidget *window, QString dataFolder, FileSources sources);

    void loadCommands();
    /// The same, with the dialog open at a file.
    void loadCommandsAt(const QString &path);
    /// Loads a file without a dialog.
    void loadCommandFile(const QString &fileName);
    /// See docs/deliberate.md, Captions.
    void saveCommands();
    void saveMessages();

    QString lastLoadFolder() const { return m_lastLoadFolder; }
    void setLastLoadFolder(const QString &folder) { m_lastLoadFolder = folder; }

    /// Shared by both kinds of saving.
    QString lastSaveFolder() const { return m_lastSaveFolder; }
    void setLastSaveFolder(const QString &folder) { m_lastSaveFolder = folder; }

signals:
    /// Something the user must be told; handlers may block.
    void notice(const QString &text);

    /// What the user is told without being stopped.
    void told(const QString &text);

    /// The commands in a file, which are the only ones from now on.
    void commandsRead(const QVector<CommandRow> &rows);

    /// The commands are now as they are in the file.
    void commandsStored(const QString &path);

    /// The commands are now those of a recovery file, which are in no other one.
    void commandsRecovered(const QString &path);

    /// The commands' file is about to be overwritten: what is in it may be lost on the way.
    void overwriting();

private:
    bool loadCommandsFrom(const QString &fileName);
    void takeCommands(const CommandFile &file, const QString &fileName);
    bool save(const QString &fileName, const QString &text,
              const std::function<void()> &beforeOverwriting = {});

    QWidget *m_window;
    QString m_dataFolder;
    FileSources m_sources;
    QString m_lastLoadFolder;
    QString m_lastSaveFolder;
};

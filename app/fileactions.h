#pragma once

#include "commands/commandrow.h"
#include "files/messagefile.h"

#include <QCoreApplication>
#include <QVector>

#include <functional>

class QWidget;
struct CommandFile;

/// What the file actions need of the window around them.
struct FileActionHooks
{
    std::function<void(const QString &)> showMessage;
    std::function<QVector<CommandRow>()> commands;
    /// Makes the given rows the only ones.
    std::function<void(const QVector<CommandRow> &)> replaceCommands;
    /// The commands are now as they are in the file.
    std::function<void(const QString &path)> commandsStored;
    /// The commands are now those of a recovery file, which are in no other one.
    std::function<void(const QString &path)> commandsRecovered;
    /// The commands' file is about to be overwritten: what is in it may be lost on the way.
    std::function<void()> beforeOverwriting;
    /// What the user is told without being stopped.
    std::function<void(const QString &)> tell;
    std::function<QVector<MessageRow>()> messages;
};

/// Loading and saving as the user sees it: asks for the file, does the work, tells what went wrong,
/// and remembers the folders for the next time.
class FileActions
{
    Q_DECLARE_TR_FUNCTIONS(FileActions)

public:
    /// Dialogs open above the given window. The record of the folders is kept in the data folder.
    FileActions(QWidget *window, QString dataFolder, FileActionHooks hooks);

    void loadCommands();
    /// The same, with the dialog open at a file.
    void loadCommandsAt(const QString &path);
    void saveCommands();
    void saveMessages();

    QString lastLoadFolder() const { return m_lastLoadFolder; }
    void setLastLoadFolder(const QString &folder) { m_lastLoadFolder = folder; }

    /// Shared by both kinds of saving.
    QString lastSaveFolder() const { return m_lastSaveFolder; }
    void setLastSaveFolder(const QString &folder) { m_lastSaveFolder = folder; }

private:
    bool loadCommandsFrom(const QString &fileName);
    void takeCommands(const CommandFile &file, const QString &fileName);
    bool save(const QString &fileName, const QString &text,
              const std::function<void()> &beforeOverwriting = {});

    QWidget *m_window;
    QString m_dataFolder;
    FileActionHooks m_hooks;
    QString m_lastLoadFolder;
    QString m_lastSaveFolder;
};

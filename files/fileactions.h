#pragma once

#include "commandrow.h"
#include "messagefile.h"

#include <QCoreApplication>
#include <QVector>

#include <functional>

class QWidget;

/// What the file actions need of the window around them.
struct FileActionHooks
{
    std::function<void(const QString &)> showMessage;
    std::function<QVector<CommandRow>()> commands;
    /// Makes the given rows the only ones.
    std::function<void(const QVector<CommandRow> &)> replaceCommands;
    /// The commands are now as they are in the file.
    std::function<void(const QString &path)> commandsStored;
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
    void saveCommands();
    void saveMessages();

    QString lastLoadFolder() const { return m_lastLoadFolder; }
    void setLastLoadFolder(const QString &folder) { m_lastLoadFolder = folder; }

    /// Shared by both kinds of saving.
    QString lastSaveFolder() const { return m_lastSaveFolder; }
    void setLastSaveFolder(const QString &folder) { m_lastSaveFolder = folder; }

private:
    bool loadCommandsFrom(const QString &fileName);
    bool save(const QString &fileName, const QString &text);

    QWidget *m_window;
    QString m_dataFolder;
    FileActionHooks m_hooks;
    QString m_lastLoadFolder;
    QString m_lastSaveFolder;
};

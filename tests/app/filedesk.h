#pragma once

#include "app/fileactions.h"
#include "messageboxes.h"

#include <QTemporaryDir>
#include <QWidget>

#include <optional>

/// The window around the file actions: it notes what happens, in order. Replacing a file is agreed
/// to.
class FileDesk
{
public:
    FileDesk();

    QString path(const QString &name) const { return dir.filePath(name); }
    /// Its folder, with the slash at the end that the file actions give to folders.
    QString folder() const { return dir.path() + QLatin1Char('/'); }
    /// The event of a list that is now as it is in a file of its folder.
    QString stored(const QString &name) const { return "stored: " + path(name); }
    /// What the file of the last folders holds.
    QByteArray storedFolders() const;

    QTemporaryDir dir;
    QWidget window;
    MessageBoxes questions;
    QVector<CommandRow> rows;
    QVector<MessageRow> messages;
    QStringList events;
    /// The last load folder at the time of the last message.
    std::optional<QString> folderAtMessage;
    FileActions actions;

    Q_DISABLE_COPY(FileDesk)

private:
    void noteEvents();
};

/// What the file of the last folders has to hold.
QByteArray folderFile(const QString &loadFolder, const QString &saveFolder);

/// A row with nothing but a description.
CommandRow rowWith(const QString &description);

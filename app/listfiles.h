#pragma once

#include "app/fileactions.h"
#include "app/recovery.h"

#include <QObject>

class CommandTable;
class ListState;
class RecordLog;
class StatusLine;
struct Settings;

/// The window's files: the command list loaded, saved and kept from loss, and the message log
/// saved.
class ListFiles : public QObject
{
    Q_OBJECT

public:
    /// Boxes open above the window; the rest must outlive this.
    ListFiles(QWidget &window, CommandTable &commands, ListState &list, const RecordLog &log,
              StatusLine &status);

    void load() { m_actions.loadCommands(); }
    /// Loads that file, but first asks what is to become of a modified list.
    void loadFrom(const QString &path);
    void save();
    /// Asks whether a modified list is to be saved, and saves it then.
    void saveIfWanted();
    void saveMessages() { m_actions.saveMessages(); }

    /// The folders that dialogs open with, from one run to the next.
    void takeFolders(const Settings &settings);
    void noteFolders(Settings &settings) const;

    /// Offers a list that another run has left behind, if there is one.
    void offerLeftBehind();

    /// The program may end now: a modified list is left to the next start.
    void keep();

    /// The list isn't needed any more.
    void discardKept() { m_recovery.discard(); }

signals:
    /// The list is as it is in this file: it was loaded or saved.
    void stored(const QString &path);

    /// Something the user must be told; handlers may block.
    void notice(const QString &text);

private:
    FileSources sources() const;
    void followActions();
    bool mayReplaceList();
    void takeRecovered(const QString &path);

    CommandTable &m_commands;
    ListState &m_list;
    const RecordLog &m_log;
    StatusLine &m_status;
    FileActions m_actions;
    Recovery m_recovery;
    QString m_leftBehind;
};

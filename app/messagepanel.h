#pragma once

#include "app/messagemenu.h"
#include "log/messagelog.h"

#include <QObject>

class CommandPanel;
class MessageArea;
class Session;
class WindowMemory;

/// The message log at work: the table of the session's records, its menu and keys.
class MessagePanel : public QObject
{
    Q_OBJECT

public:
    /// Area and session must outlive this. The table waits while a frame of the loop is near.
    MessagePanel(MessageArea &area, Session &session, QObject *parent = nullptr);

    /// The menu goes to these command rows, which must outlive the panel.
    void goToRowsOf(CommandPanel &commands);

    /// What the last column shows is what it showed in the run before, and is kept for the next
    /// one. The memory must outlive the panel.
    void remember(WindowMemory &memory);

    /// What the log's last column shows of the rows' times.
    void setShownTime(ShownTime shown);
    ShownTime shownTime() const { return m_log.shownTime(); }

    /// What is asked for the file of the recording that runs; empty where none does.
    void setRecordingFile(const std::function<QString()> &file) { m_log.setRecordingFile(file); }

private:
    MessageLog m_log;
    MessageMenu m_menu;
    WindowMemory *m_memory = nullptr;
};

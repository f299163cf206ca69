#pragma once

#include "app/csvjob.h"
#include "recording/recorder.h"

#include <QObject>

class RecordPanel;
class Session;
class StatusLine;
class WindowMemory;

/// Records a session as the panel's buttons say, and exports recordings. A recording goes on
/// whatever happens to links, log and messages; it ends in good order when this is destroyed.
class RecordControl : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this; file dialogs open above the panel's window. The memory keeps the
    /// folder of recordings.
    RecordControl(RecordPanel &panel, Session &session, StatusLine &status, WindowMemory &memory,
                  QObject *parent = nullptr);
    ~RecordControl() override;

    /// The file that a running recording writes; empty where none runs.
    QString file() const;

private:
    void startOrStop();
    void start();
    void stop();
    void showStatus();
    void tellFile(const QString &path);
    void tellEnd();
    void exportRecording();
    QString folder() const;

    RecordPanel &m_panel;
    Session &m_session;
    StatusLine &m_status;
    WindowMemory &m_memory;
    Recorder m_recorder;
    CsvJob m_export;
    /// The one that the user was told of last.
    QString m_toldFile;
};

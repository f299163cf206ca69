#pragma once

#include "recording/recorder.h"

#include <QObject>

class Session;

/// The recording of a run: what goes over the wire of a session, in a file.
class RunRecording : public QObject
{
    Q_OBJECT

public:
    /// Without a path nothing is recorded. The session must outlive this.
    RunRecording(Session &session, QString path, QObject *parent = nullptr);

    /// What a recording that begins now begins with.
    RecordingHead head() const;

    /// Begins, with what the session's tap tells from then on. The outcome is told from the event
    /// loop.
    void start();

    /// Completes the file; false if something is missing in it.
    bool finish();

signals:
    /// The file is there, or there is none to be.
    void began();
    /// The file can't be made, for the reason given.
    void failed(const QString &why);

private:
    void follow();
    QString failure() const;

    Session &m_session;
    QString m_path;
    Recorder m_recorder;
    bool m_hasBegun = false;
};

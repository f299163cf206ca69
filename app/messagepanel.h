#pragma once

#include "app/messagecopy.h"
#include "log/messagelog.h"

#include <QObject>

class MessageArea;
class Session;

/// The message log at work: the table of the session's records, and its copy key.
class MessagePanel : public QObject
{
    Q_OBJECT

public:
    /// Area and session must outlive this. The table waits while a frame of the loop is near.
    MessagePanel(MessageArea &area, Session &session, QObject *parent = nullptr);

private:
    MessageLog m_log;
    MessageCopy m_copy;
};

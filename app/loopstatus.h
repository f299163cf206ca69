#pragma once

#include "log/displaypace.h"

#include <QObject>

class Session;
class StatusLine;

/// Shows in the status line how the loop goes, a few times a second, and at last how it went.
class LoopStatus : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this. Showing waits while a frame of the loop is near.
    LoopStatus(Session &session, StatusLine &status, QObject *parent = nullptr);

private:
    DisplayPace m_pace;
};

#pragma once

#include <QObject>

/// A clock with an alarm. Times are in ns since a moment that stays the same.
class AlarmClock : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The time now; it never goes back.
    virtual qint64 now() const = 0;

    /// Sets the alarm to ring once at that time, in place of any other. For a time that has passed
    /// it rings as soon as the event loop gets to it.
    virtual void setAlarm(qint64 time) = 0;

    /// Cancels the alarm.
    virtual void clearAlarm() = 0;

signals:
    /// The alarm's time has come; emitted from the event loop.
    void rang();
};

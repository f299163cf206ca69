#pragma once

#include "frames/arrivaltime.h"

#include <QByteArray>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <deque>

/// Gives each report that comes in 2 ms, then hands it up, in order.
///
/// While whoever takes a report is busy with it (a message box may be up), the next ones wait here.
class ReportInbox : public QObject
{
    Q_OBJECT

public:
    /// Bytes of reports that wait at most; what comes beyond them is dropped.
    static constexpr int capacity = 1024 * 1024;

    explicit ReportInbox(QObject *parent = nullptr);

    /// Takes in the data of a report that was read then; an empty one is ignored.
    void put(const QByteArray &report, ArrivalTime time);

    /// Hands up at once what waits.
    void handUpAll();

    /// Forgets what waits.
    void clear();

signals:
    /// The data of a report, and when it was read.
    void arrived(const QByteArray &report, ArrivalTime time);
    /// So many bytes behind the report signalled last are lost.
    void dropped(qint64 bytes);

private:
    using Clock = std::chrono::steady_clock;

    struct Waiting
    {
        QByteArray report;
        ArrivalTime time;
        Clock::time_point due;
        qint64 droppedBehind = 0;
    };

    void handUpDueBy(Clock::time_point moment);
    Waiting takeOldest();
    void wake();

    std::deque<Waiting> m_waiting;
    int m_bytes = 0;
    bool m_busy = false;
    QTimer m_due;
};

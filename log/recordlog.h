#pragma once

#include "logrecord.h"
#include "recordtime.h"

#include <QObject>
#include <QVector>

#include <functional>

/// Keeps a record of what was sent and received and of what happened to the links, in that order.
///
/// What went over the wire is numbered from 1. A full log empties itself before the next record.
class RecordLog : public QObject
{
    Q_OBJECT

public:
    /// Records that it is filled with before it empties itself.
    static constexpr int mostRecords = 1025;

    using Clock = std::function<RecordTime()>;

    explicit RecordLog(QObject *parent = nullptr);

    /// Takes the time from another clock than the system's.
    explicit RecordLog(Clock clock, QObject *parent = nullptr);

    /// Records a frame that was given to the system just now.
    void appendSent(const QByteArray &frame, bool withCrc);

    /// Records a received frame.
    void appendReceived(const QByteArray &frame, bool withCrc);

    /// Records received bytes that form no frame.
    void appendStray(const QByteArray &bytes);

    /// Records something that happened to the link of that name. It takes no number.
    void appendEvent(const QString &source, const QString &text);

    /// Empties the log; numbers start from 1 again.
    void clear();

    /// All records that are kept, the oldest first.
    const QVector<LogRecord> &records() const { return m_records; }

    /// How many there are.
    int count() const { return m_records.size(); }

signals:
    /// A record has been added at the end.
    void appended(const LogRecord &record);

    /// The log has been emptied by `clear`.
    void cleared();

    /// The full log has emptied itself, to begin with the record that follows.
    void startedOver();

private:
    void appendNumbered(LogRecord record);
    void append(LogRecord record);
    void startOverIfFull();
    void forgetAll();

    Clock m_clock;
    QVector<LogRecord> m_records;
    int m_nextNumber = 1;
};

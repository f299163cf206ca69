#pragma once

#include "frames/arrivaltime.h"
#include "log/logrecord.h"

#include <QObject>
#include <QVector>

#include <functional>
#include <optional>

/// Keeps a record of what was sent and received and of what happened to the links, in that order.
///
/// What went over the wire is numbered from 1. A full log empties itself before the next record.
class RecordLog : public QObject
{
    Q_OBJECT

public:
    /// Records that it is filled with before it empties itself.
    /// See docs/deliberate.md, Full log.
    static constexpr int mostRecords = 1025;

    using Clock = std::function<ArrivalTime()>;
    /// The time of a record; nothing stands for the time at which it is appended.
    using Time = std::optional<ArrivalTime>;

    explicit RecordLog(QObject *parent = nullptr);

    /// Takes the time from another clock than the system's.
    explicit RecordLog(Clock clock, QObject *parent = nullptr);

    /// Records a frame that was given to the system at that time, made of the row with that
    /// identity.
    void appendSent(const QByteArray &frame, bool withCrc, Time time = std::nullopt, int rowId = 0);

    /// Records a frame that was read from the system at that time; of one that came in pieces, the
    /// first byte was read when it was begun. With a fault, it is not what was expected.
    void appendReceived(const QByteArray &frame, bool withCrc, Time time = std::nullopt,
                        Time begun = std::nullopt, const QString &fault = {});

    /// Records bytes that were read from the system at that time and form no frame.
    void appendStray(const QByteArray &bytes, Time time = std::nullopt);

    /// Records something that happened to the link of that name. It takes no number.
    void appendEvent(const QString &source, const Wording &text);

    /// The same for what is shown as it is saved.
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
    void appendNumbered(LogRecord record, Time time, Time begun = std::nullopt);
    void append(LogRecord record, Time time, Time begun = std::nullopt);
    void startOverIfFull();
    void forgetAll();

    Clock m_clock;
    QVector<LogRecord> m_records;
    int m_nextNumber = 1;
};

#include "log/recordlog.h"

#include <utility>

RecordLog::RecordLog(QObject *parent)
    : RecordLog(ArrivalTime::now, parent)
{}

RecordLog::RecordLog(Clock clock, QObject *parent)
    : QObject(parent)
    , m_clock(std::move(clock))
{}

void RecordLog::appendSent(const QByteArray &frame, bool withCrc, Time time, int rowId)
{
    appendNumbered({LogRecord::Kind::Sent, 0, 0, 0, frame, withCrc, {}, {}, rowId}, time);
}

void RecordLog::appendReceived(const QByteArray &frame, bool withCrc, Time time, Time begun,
                               const QString &fault)
{
    LogRecord record{LogRecord::Kind::Received, 0, 0, 0, frame, withCrc, {}, {}};
    record.fault = fault;
    appendNumbered(std::move(record), time, begun);
}

void RecordLog::appendStray(const QByteArray &bytes, Time time)
{
    appendNumbered({LogRecord::Kind::Stray, 0, 0, 0, bytes, false, {}, {}}, time);
}

void RecordLog::appendEvent(const QString &source, const QString &text)
{
    appendEvent(source, Wording{text, text});
}

void RecordLog::appendEvent(const QString &source, const Wording &text)
{
    startOverIfFull();
    append({LogRecord::Kind::Event, 0, 0, 0, {}, false, source, text}, std::nullopt);
}

void RecordLog::clear()
{
    forgetAll();
    emit cleared();
}

void RecordLog::appendNumbered(LogRecord record, Time time, Time begun)
{
    startOverIfFull();
    record.number = m_nextNumber++;
    append(std::move(record), time, begun);
}

void RecordLog::append(LogRecord record, Time time, Time begun)
{
    const ArrivalTime when = time ? *time : m_clock();
    record.utcUs = when.utcUs;
    record.monotonicNs = when.monotonicNs;
    record.begun = begun.value_or(when);
    m_records.append(record);
    // Not the one in the log: a listener may empty that.
    emit appended(record);
}

void RecordLog::startOverIfFull()
{
    if (m_records.size() >= mostRecords) {
        forgetAll();
        emit startedOver();
    }
}

void RecordLog::forgetAll()
{
    m_records.clear();
    m_nextNumber = 1;
}

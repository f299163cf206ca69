#pragma once

#include "expectations/expectation.h"
#include "expectations/receivedframe.h"

#include <QString>
#include <QStringList>

/// One row on its way: what it still waits for, and what has come so far.
///
/// Frames count in the order in which they come: the first one is the reply, whatever it is. All
/// times are in ns of one clock.
class RowTrial
{
public:
    /// The time-out in ms goes for what names no time of its own. A strict trial fails for whatever
    /// it doesn't expect.
    RowTrial(Expectation expectation, int timeoutMs, bool isStrict);

    /// The row went out at that time.
    void begin(qint64 sentNs);

    /// A frame has come in. False where it is none of this row's: it is older than the row, or
    /// nothing was waited for.
    bool take(const ReceivedFrame &frame);

    /// Whether the frame is what is waited for, in time and not forbidden.
    bool fits(const ReceivedFrame &frame) const;

    /// Bytes that form no frame have come in.
    void takeStray(const QByteArray &bytes, qint64 timeNs);

    /// It is that late by now.
    void passTime(qint64 nowNs);

    /// Whether nothing is waited for any more.
    bool isOver() const;

    /// When the wait ends at the latest.
    qint64 dueNs() const;

    bool hasFailed() const { return !m_failure.isEmpty(); }

    /// What was expected, and what came instead; empty while nothing is wrong.
    QString failure() const { return m_failure; }

    /// The payloads of the frames that have come in.
    const QVector<QByteArray> &replies() const { return m_replies; }

    /// From the row to the first frame; nothing where none came.
    std::optional<qint64> replyTimeNs() const { return m_replyTimeNs; }

private:
    const QVector<ExpectedFrame> *awaited() const;
    qint64 limitNs(const ExpectedFrame &frame, qint64 sinceNs) const;
    qint64 latestNs(const QVector<ExpectedFrame> &frames, qint64 sinceNs) const;
    qint64 quietUntilNs() const;
    void judge(const ReceivedFrame &frame);
    void checkForbidden(const ReceivedFrame &frame);
    QString whyForbidden(const ReceivedFrame &frame) const;
    QString whyNot(const QVector<ExpectedFrame> &wanted, const ReceivedFrame &frame) const;
    QString after(qint64 timeNs) const;
    void fail(const QString &words);

    Expectation m_expectation;
    int m_timeoutMs;
    bool m_isStrict;
    qint64 m_sentNs = 0;
    /// When the frame before came in, or the row went out.
    qint64 m_sinceNs = 0;
    qint64 m_nowNs = 0;
    int m_frames = 0;
    bool m_gaveUp = false;
    QString m_failure;
    QVector<QByteArray> m_replies;
    std::optional<qint64> m_replyTimeNs;
};

/// Bytes as they are written for a reader: pairs of upper-case digits with blanks between them.
QString bytesText(const QByteArray &bytes);

/// A time in ns as ms, "3.2 ms".
QString millisecondsText(qint64 ns);

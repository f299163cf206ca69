#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <optional>

/// The outcome of a row.
struct RowResult
{
    /// Sent, with nothing to check; answered as expected; not so; the link was lost meanwhile.
    enum class Verdict { Sent, Passed, Failed, Lost };

    /// Among the rows of its file, from 1; 0 for what no row stands for.
    int number = 0;
    QString description;
    /// From 1.
    int pass = 1;
    Verdict verdict = Verdict::Sent;
    /// Why it failed.
    QString why;
    /// The frame as it went over the wire, and the payloads of what came.
    QByteArray sent;
    QVector<QByteArray> replies;
    /// From the row to its first reply, in ns.
    std::optional<qint64> replyTimeNs;
    /// Bytes that came in meanwhile and form no frame.
    qint64 strayBytes = 0;
    /// How often it was sent.
    int attempts = 1;

    bool isGood() const { return verdict == Verdict::Sent || verdict == Verdict::Passed; }
};

/// A verdict in one word: "sent", "pass", "fail" or "lost".
QString verdictWord(RowResult::Verdict verdict);

/// A row as reports name it, "003 Read status".
QString rowName(const RowResult &result);

#pragma once

#include "log/logrecord.h"

#include <QByteArray>
#include <QString>
#include <QVector>

/// What is looked for in the log, as typed: words, all of which a record must match.
///
/// "tx" is what was sent, "rx" what was received, "note" what is no frame. Words of hex digits that
/// follow each other are bytes, wherever their blanks are; they match bytes in this order, whole
/// ones but for the last digit of an odd number of them. They match as texts, too, as other words
/// do: a text of one of the columns has them in it. Case doesn't count.
class LogFilter
{
public:
    /// Nothing is looked for: everything matches.
    LogFilter() = default;

    explicit LogFilter(const QString &typed);

    bool isEmpty() const { return m_kinds.isEmpty() && m_terms.isEmpty(); }

    bool matches(const LogRecord &record) const;

private:
    enum class KindWord { Sent, Received, NoFrame };

    /// A text, and the digits of the bytes that it may stand for.
    struct Term
    {
        QString text;
        QByteArray digits;
    };

    void take(const QString &word, bool followsDigits);
    bool matchesTerms(const LogRecord &record) const;
    static bool matchesKind(LogRecord::Kind kind, KindWord word);

    QVector<KindWord> m_kinds;
    QVector<Term> m_terms;
};

#pragma once

#include "expectations/parsed.h"

#include <QByteArray>
#include <QVector>

/// What bytes have to look like: "03 0010 ?? 4? **".
///
/// Hex digits stand for themselves, a question mark for any half of a byte, and two asterisks for
/// any number of bytes, also for none.
class BytePattern
{
public:
    /// How often "**" may stand in a pattern.
    static constexpr int mostGaps = 4;

    /// Reads a pattern; blanks may stand between the pairs. A column of a fault counts from the
    /// beginning of the text.
    static Parsed<BytePattern> parse(const QString &text);

    /// Whether these bytes, all of them, fit. The time it takes grows with the number of bytes, not
    /// faster, wherever the gaps are.
    bool matches(const QByteArray &bytes) const;

    /// The pattern as it was written, in upper case and with single blanks.
    QString text() const { return m_text; }

private:
    /// A byte fits where it has this value in the bits of the mask.
    struct Element
    {
        quint8 value = 0;
        quint8 mask = 0;
    };

    bool appendPair(QChar high, QChar low);

    QVector<Element> m_elements;
    /// How many elements stand before each "**".
    QVector<int> m_gaps;
    QString m_text;

    friend class PatternWalk;
};

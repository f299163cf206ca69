#include "log/logfilter.h"

#include "frames/hextext.h"
#include "log/logtexts.h"

#include <QStringList>

#include <algorithm>
#include <optional>

namespace {

bool isHexWord(const QString &word)
{
    return std::all_of(word.begin(), word.end(), [](QChar character) {
        return hexDigitValue(character.toLatin1()).has_value();
    });
}

/// Whether the bytes have those digits in them, the first one being the high one of a byte.
bool haveDigits(const QByteArray &bytes, const QByteArray &digits)
{
    const QByteArray whole = QByteArray::fromHex(digits.left(digits.size() & ~1));
    const bool hasHalf = digits.size() % 2 != 0;
    const auto half = hasHalf ? hexDigitValue(digits.back()) : std::nullopt;
    const int size = whole.size() + (hasHalf ? 1 : 0);
    for (int at = bytes.indexOf(whole); at >= 0 && at + size <= bytes.size();
         at = bytes.indexOf(whole, at + 1)) {
        constexpr int bitsOfDigit = 4;
        if (!half || static_cast<quint8>(bytes.at(at + whole.size())) >> bitsOfDigit == *half) {
            return true;
        }
    }
    return false;
}

bool haveText(const LogTexts &texts, const QString &text)
{
    return std::any_of(texts.begin(), texts.end(), [&text](const QString &column) {
        return column.contains(text, Qt::CaseInsensitive);
    });
}

} // namespace

LogFilter::LogFilter(const QString &typed)
{
    bool followsDigits = false;
    for (const QString &word : typed.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        take(word, followsDigits);
        followsDigits = isHexWord(word);
    }
}

bool LogFilter::matches(const LogRecord &record) const
{
    const bool isOfKind = std::all_of(m_kinds.begin(), m_kinds.end(), [&record](KindWord word) {
        return matchesKind(record.kind, word);
    });
    return isOfKind && matchesTerms(record);
}

void LogFilter::take(const QString &word, bool followsDigits)
{
    const QString lower = word.toLower();
    if (lower == QLatin1String("tx")) {
        m_kinds.append(KindWord::Sent);
    } else if (lower == QLatin1String("rx")) {
        m_kinds.append(KindWord::Received);
    } else if (lower == QLatin1String("note")) {
        m_kinds.append(KindWord::NoFrame);
    } else if (!isHexWord(word)) {
        m_terms.append({word, {}});
    } else if (followsDigits) {
        m_terms.last().text += QLatin1Char(' ') + word;
        m_terms.last().digits += word.toLatin1();
    } else {
        m_terms.append({word, word.toLatin1()});
    }
}

bool LogFilter::matchesTerms(const LogRecord &record) const
{
    std::optional<LogTexts> texts;
    return std::all_of(m_terms.begin(), m_terms.end(), [&](const Term &term) {
        if (!term.digits.isEmpty() && haveDigits(record.bytes, term.digits)) {
            return true;
        }
        if (!texts) {
            texts = shownTextsOf(record);
        }
        return haveText(*texts, term.text);
    });
}

bool LogFilter::matchesKind(LogRecord::Kind kind, KindWord word)
{
    using Kind = LogRecord::Kind;
    switch (word) {
    case KindWord::Sent:
        return kind == Kind::Sent;
    case KindWord::Received:
        return kind == Kind::Received || kind == Kind::Stray;
    case KindWord::NoFrame:
        break;
    }
    return kind == Kind::Stray || kind == Kind::Event;
}

#include "codec/byteliteral.h"

#include "frames/hextext.h"

#include <utility>

namespace {

constexpr int longestEscape = 4;
constexpr ushort largestAscii = 126;

/// Reads a literal from left to right.
class LiteralReader
{
public:
    LiteralReader(QString text, QChar quote)
        : m_text(std::move(text))
        , m_quote(quote)
    {}

    ByteLiteral read()
    {
        while (m_at < m_text.size()) {
            const int before = m_at;
            if (!readOne()) {
                return {{}, m_text.mid(before, longestEscape)};
            }
        }
        return {m_bytes};
    }

private:
    bool isQuoted() const { return !m_quote.isNull(); }

    bool readOne()
    {
        const QChar character = m_text.at(m_at);
        if (character == QLatin1Char('\\')) {
            return readEscape();
        }
        ++m_at;
        if (!isQuoted()) {
            return character.isSpace() || character == QLatin1Char(',');
        }
        const ushort code = character.unicode();
        m_bytes.append(char(code));
        return character != m_quote && code >= ' ' && code <= largestAscii;
    }

    bool readEscape()
    {
        const char kind = m_at + 1 < m_text.size() ? m_text.at(m_at + 1).toLatin1() : '\0';
        m_at += 2;
        if (kind == 'x' || kind == 'X') {
            return readDigits();
        }
        return isQuoted() && (readOctal(kind) || readNamed(kind));
    }

    bool readDigits()
    {
        const QByteArray digits = m_text.mid(m_at, 2).toLatin1();
        m_at += 2;
        if (digits.size() < 2 || !hexDigitValue(digits.at(0)) || !hexDigitValue(digits.at(1))) {
            return false;
        }
        m_bytes.append(QByteArray::fromHex(digits));
        return true;
    }

    /// One to three digits, the first of which has been read.
    bool readOctal(char first)
    {
        const auto isDigit = [](char digit) { return digit >= '0' && digit <= '7'; };
        if (!isDigit(first)) {
            return false;
        }
        int value = first - '0';
        for (int i = 0; i < 2 && m_at < m_text.size(); ++i) {
            const char digit = m_text.at(m_at).toLatin1();
            if (!isDigit(digit)) {
                break;
            }
            value = value * 8 + (digit - '0');
            ++m_at;
        }
        m_bytes.append(char(value));
        return value <= 0xFF;
    }

    bool readNamed(char kind)
    {
        static const QByteArray names("abfnrtv\\'\"");
        static const QByteArray values("\a\b\f\n\r\t\v\\'\"");
        const int place = kind == '\0' ? -1 : names.indexOf(kind);
        if (place < 0) {
            return false;
        }
        m_bytes.append(values.at(place));
        return true;
    }

    QString m_text;
    QChar m_quote;
    int m_at = 0;
    QByteArray m_bytes;
};

bool isQuote(QChar character)
{
    return character == QLatin1Char('\'') || character == QLatin1Char('"');
}

/// The quote that a text begins and ends with; null where it doesn't.
QChar quoteAround(const QString &text)
{
    const bool isQuoted = text.size() >= 2 && isQuote(text.at(0)) && text.endsWith(text.at(0));
    return isQuoted ? text.at(0) : QChar();
}

bool isBytePrefixed(const QString &text)
{
    return text.startsWith(QLatin1Char('b'), Qt::CaseInsensitive) &&
           !quoteAround(text.mid(1)).isNull();
}

} // namespace

bool isByteLiteral(const QString &text)
{
    return text.contains(QLatin1Char('\\')) || isBytePrefixed(text);
}

ByteLiteral readByteLiteral(const QString &text)
{
    const QString string = isBytePrefixed(text) ? text.mid(1) : text;
    const QChar quote = quoteAround(string);
    return LiteralReader(quote.isNull() ? string : string.mid(1, string.size() - 2), quote).read();
}

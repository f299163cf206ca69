#include "files/initext.h"

#include "frames/hextext.h"

#include <QTextCodec>

#include <algorithm>
#include <cstring>

namespace {

/// What stands behind a backslash, and the character that it means.
const QByteArray escapeLetters = QByteArrayLiteral("0abfnrtv\"\\?'");
const QByteArray escapedBytes = QByteArrayLiteral("\0\a\b\f\n\r\t\v\"\\?'");

bool isEscapeDigit(char byte)
{
    return (byte >= '0' && byte <= '9') || (byte >= 'a' && byte <= 'f') ||
           (byte >= 'A' && byte <= 'F');
}

bool isBlank(char byte)
{
    return byte == ' ' || byte == '\t' || byte == '\r';
}

/// A byte-order mark at the beginning is a character like any other.
QString fromUtf8(const QByteArray &bytes)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
}

/// Takes a value apart, from its first byte to its last one.
class IniValueReader
{
public:
    explicit IniValueReader(const QByteArray &raw)
        : m_raw(raw)
    {}

    /// Nothing for a list.
    std::optional<QString> read()
    {
        while (!atEnd() && isBlank(m_raw.at(m_position))) {
            ++m_position;
        }
        while (!atEnd()) {
            const char byte = m_raw.at(m_position++);
            if (byte == ',' && !m_isQuoted) {
                return std::nullopt;
            }
            if (byte == ';' && !m_isQuoted) {
                break;
            }
            take(byte);
        }
        while (!m_isQuoted && !m_plain.isEmpty() && isBlank(m_plain.at(m_plain.size() - 1))) {
            m_plain.chop(1);
        }
        return m_text + fromUtf8(m_plain);
    }

private:
    bool atEnd() const { return m_position == m_raw.size(); }

    void take(char byte)
    {
        if (byte == '"') {
            append({});
            m_isQuoted = !m_isQuoted;
        } else if (byte == '\\' && !atEnd()) {
            append(escapedCharacter(m_raw.at(m_position++)));
        } else if (byte != '\\') {
            m_plain.append(byte);
        }
    }

    /// What is before it belongs to the value with all its blanks.
    void append(const QString &text)
    {
        m_text += fromUtf8(m_plain) + text;
        m_plain.clear();
    }

    /// One that means nothing is left out.
    QString escapedCharacter(char letter)
    {
        const int known = escapeLetters.indexOf(letter);
        if (known >= 0) {
            return {QLatin1Char(escapedBytes.at(known))};
        }
        const int begin = m_position;
        while (letter == 'x' && !atEnd() && isEscapeDigit(m_raw.at(m_position))) {
            ++m_position;
        }
        const QByteArray digits = m_raw.mid(begin, m_position - begin);
        return digits.isEmpty() ? QString() : QString(QChar(digits.toUShort(nullptr, hexBase)));
    }

    const QByteArray &m_raw;
    int m_position = 0;
    bool m_isQuoted = false;
    QString m_text;
    QByteArray m_plain;
};

bool needsQuotes(const QByteArray &text)
{
    constexpr const char *marks = ";,=";
    const auto isMark = [](char byte) {
        return byte != '\0' && std::strchr(marks, byte) != nullptr;
    };
    return text.startsWith(' ') || text.endsWith(' ') ||
           std::any_of(text.begin(), text.end(), isMark);
}

/// The digit behind a number would be taken for a part of it, so that is written as a number, too.
QByteArray withEscapes(const QByteArray &text)
{
    constexpr uchar firstPrintable = 0x20;
    QByteArray escaped;
    bool isBehindNumber = false;
    for (const char byte : text) {
        const bool isControl = static_cast<uchar>(byte) < firstPrintable;
        isBehindNumber = isControl || (isBehindNumber && isEscapeDigit(byte));
        if (isBehindNumber) {
            escaped += "\\x" + QByteArray::number(static_cast<uchar>(byte), hexBase);
        } else if (byte == '"' || byte == '\\') {
            escaped += '\\';
            escaped += byte;
        } else {
            escaped += byte;
        }
    }
    return escaped;
}

} // namespace

std::optional<QString> iniText(const QByteArray &raw)
{
    const std::optional<QString> text = IniValueReader(raw).read();
    if (!text || !text->startsWith(QLatin1Char('@'))) {
        return text;
    }
    if (text->startsWith(QLatin1String("@@"))) {
        return text->mid(1);
    }
    return text->endsWith(QLatin1Char(')')) ? std::nullopt : text;
}

QByteArray iniValue(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    const QByteArray value = withEscapes(bytes.startsWith('@') ? '@' + bytes : bytes);
    return needsQuotes(bytes) ? '"' + value + '"' : value;
}

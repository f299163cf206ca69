#include "expectations/bytepattern.h"

#include "frames/hextext.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

constexpr QChar anyHalf('?');
constexpr QChar gapMark('*');

/// Value and mask of half a byte; nothing for a character that stands for none.
std::optional<std::pair<quint8, quint8>> halfOf(QChar character)
{
    constexpr quint8 allBits = 0xF;
    if (character == anyHalf) {
        return std::pair<quint8, quint8>(0, 0);
    }
    const std::optional<quint8> value = hexDigitValue(character.toLatin1());
    return value ? std::optional(std::pair(*value, allBits)) : std::nullopt;
}

} // namespace

/// A row of bits as long as is needed.
class BitRow
{
public:
    explicit BitRow(int size)
        : m_words(static_cast<size_t>(size / bitsPerWord + 1))
    {}

    void set(int bit) { wordOf(bit) |= maskOf(bit); }
    bool has(int bit) const
    {
        return (m_words[static_cast<size_t>(bit / bitsPerWord)] & maskOf(bit)) != 0;
    }

    /// The bits that `steps` lets through, moved up by one, and those that `stays` lets stay.
    void advance(const BitRow &steps, const BitRow &stays)
    {
        quint64 carry = 0;
        for (size_t i = 0; i < m_words.size(); ++i) {
            const quint64 stepping = m_words[i] & steps.m_words[i];
            m_words[i] = (stepping << 1U) | carry | (m_words[i] & stays.m_words[i]);
            carry = stepping >> (bitsPerWord - 1U);
        }
    }

private:
    static constexpr int bitsPerWord = 64;

    static quint64 maskOf(int bit)
    {
        return quint64(1) << static_cast<unsigned>(bit % bitsPerWord);
    }
    quint64 &wordOf(int bit) { return m_words[static_cast<size_t>(bit / bitsPerWord)]; }

    std::vector<quint64> m_words;
};

/// Walks through the bytes with all ways to read them at once: bit n is set while the bytes so far
/// fit the first n elements.
class PatternWalk
{
public:
    explicit PatternWalk(const BytePattern &pattern)
        : m_pattern(pattern)
        , m_reached(pattern.m_elements.size())
        , m_gaps(pattern.m_elements.size())
    {
        m_reached.set(0);
        for (const int gap : pattern.m_gaps) {
            m_gaps.set(gap);
        }
    }

    bool matches(const QByteArray &bytes)
    {
        for (const char byte : bytes) {
            m_reached.advance(stepsOf(static_cast<quint8>(byte)), m_gaps);
        }
        return m_reached.has(m_pattern.m_elements.size());
    }

private:
    /// Which elements a byte fits; found out once for each value.
    const BitRow &stepsOf(quint8 byte)
    {
        std::optional<BitRow> &steps = m_steps.at(byte);
        if (!steps) {
            steps.emplace(m_pattern.m_elements.size());
            for (int i = 0; i < m_pattern.m_elements.size(); ++i) {
                const BytePattern::Element element = m_pattern.m_elements.at(i);
                if ((byte & element.mask) == element.value) {
                    steps->set(i);
                }
            }
        }
        return *steps;
    }

    const BytePattern &m_pattern;
    BitRow m_reached;
    BitRow m_gaps;
    std::array<std::optional<BitRow>, 256> m_steps;
};

Parsed<BytePattern> BytePattern::parse(const QString &text)
{
    BytePattern pattern;
    int position = 0;
    while (position < text.size()) {
        if (text.at(position) == QLatin1Char(' ')) {
            ++position;
            continue;
        }
        if (position + 1 == text.size() || text.at(position + 1) == QLatin1Char(' ')) {
            return Parsed<BytePattern>::failed(position + 1,
                                               QStringLiteral("half a byte is missing"));
        }
        if (!pattern.appendPair(text.at(position), text.at(position + 1))) {
            return Parsed<BytePattern>::failed(
                position + 1, QStringLiteral("\"%1\" is neither two hex digits or \"?\" nor \"**\"")
                                  .arg(text.mid(position, 2)));
        }
        if (pattern.m_gaps.size() > mostGaps) {
            return Parsed<BytePattern>::failed(
                position + 1,
                QStringLiteral("\"**\" stands there more than %1 times").arg(mostGaps));
        }
        position += 2;
    }
    if (pattern.m_elements.isEmpty() && pattern.m_gaps.isEmpty()) {
        return Parsed<BytePattern>::failed(1, QStringLiteral("bytes are missing"));
    }
    pattern.m_text = text.simplified().toUpper();
    return {pattern, {}};
}

bool BytePattern::appendPair(QChar high, QChar low)
{
    if (high == gapMark && low == gapMark) {
        m_gaps.append(m_elements.size());
        return true;
    }
    const auto highHalf = halfOf(high);
    const auto lowHalf = halfOf(low);
    if (!highHalf || !lowHalf) {
        return false;
    }
    const auto joined = [](quint8 upper, quint8 lower) {
        return static_cast<quint8>((upper << 4U) | lower);
    };
    m_elements.append(
        {joined(highHalf->first, lowHalf->first), joined(highHalf->second, lowHalf->second)});
    return true;
}

bool BytePattern::matches(const QByteArray &bytes) const
{
    const bool isTooShort = bytes.size() < m_elements.size();
    const bool isTooLong = m_gaps.isEmpty() && bytes.size() > m_elements.size();
    return !isTooShort && !isTooLong && PatternWalk(*this).matches(bytes);
}

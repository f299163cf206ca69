#include "codec/pastedbytes.h"

#include "codec/byteliteral.h"
#include "frames/hextext.h"

#include <QStringList>

#include <algorithm>

namespace {

/// With room for a name like "0x10, " or a line break after each byte.
constexpr int mostCharacters = 8 * mostPastedBytes;
constexpr int longestPart = 20;

enum class Notation { Plain, Prefixed, Suffixed };

/// A text without what stands around its numbers.
struct Listing
{
    QString text;
    /// Whether it is written as lists of numbers are.
    bool isList = false;
};

PastedBytes faulty(PasteFault fault, const QString &part)
{
    const bool isLong = part.size() > longestPart;
    return {{}, fault, isLong ? part.left(longestPart) + QStringLiteral("…") : part};
}

bool isHex(const QString &text)
{
    return !text.isEmpty() && std::all_of(text.cbegin(), text.cend(), [](QChar character) {
        return hexDigitValue(character.toLatin1()).has_value();
    });
}

bool isBetween(const QString &text, char opening, char closing)
{
    return text.size() >= 2 && text.startsWith(QLatin1Char(opening)) &&
           text.endsWith(QLatin1Char(closing));
}

QString inner(const QString &text)
{
    return text.mid(1, text.size() - 2).trimmed();
}

Listing listingOf(QString text)
{
    Listing listing;
    while (text.endsWith(QLatin1Char(';')) || text.endsWith(QLatin1Char(','))) {
        text = text.left(text.size() - 1).trimmed();
        listing.isList = true;
    }
    if (isBetween(text, '{', '}') || isBetween(text, '[', ']') || isBetween(text, '(', ')')) {
        text = inner(text);
        listing.isList = true;
    } else if (isBetween(text, '"', '"') || isBetween(text, '\'', '\'')) {
        text = inner(text);
    }
    listing.isList =
        listing.isList || text.contains(QLatin1Char(',')) || text.contains(QLatin1Char(';'));
    listing.text = text;
    return listing;
}

/// The parts between white space, commas and semicolons; two commas have an empty one between them,
/// and a last comma none behind it.
QStringList partsOf(QString text)
{
    text.replace(QLatin1Char(';'), QLatin1Char(','));
    QStringList parts;
    const QStringList items = text.split(QLatin1Char(','));
    for (int i = 0; i < items.size(); ++i) {
        const QString item = items.at(i).simplified();
        if (!item.isEmpty() || i < items.size() - 1) {
            parts.append(item.split(QLatin1Char(' ')));
        }
    }
    return parts;
}

/// "10-20" and "10:20" without what stands between the bytes; other texts as they are.
QString withoutJoints(const QString &part)
{
    QString digits = part.left(2);
    for (int i = 2; i < part.size(); i += 3) {
        const bool isJoint = part.at(i) == QLatin1Char('-') || part.at(i) == QLatin1Char(':');
        if (!isJoint || part.size() < i + 3 || part.at(i) != part.at(2)) {
            return part;
        }
        digits += part.mid(i + 1, 2);
    }
    return digits;
}

Notation notationOf(const QString &part)
{
    if (part.startsWith(QLatin1String("0x"), Qt::CaseInsensitive)) {
        return Notation::Prefixed;
    }
    return part.endsWith(QLatin1Char('h'), Qt::CaseInsensitive) ? Notation::Suffixed
                                                                : Notation::Plain;
}

/// The digits of a part, made even where its notation says what is meant.
QString digitsOfPart(const QString &part, Notation notation)
{
    if (notation == Notation::Plain) {
        return withoutJoints(part);
    }
    QString digits = notation == Notation::Prefixed ? part.mid(2) : part.left(part.size() - 1);
    if (digits.size() == 1) {
        digits.prepend(QLatin1Char('0'));
    }
    const bool hasZeroInFront = digits.size() % 2 != 0 && digits.startsWith(QLatin1Char('0'));
    return notation == Notation::Suffixed && hasZeroInFront ? digits.mid(1) : digits;
}

bool showsHex(const QString &digits)
{
    const bool hasLetter =
        std::any_of(digits.cbegin(), digits.cend(), [](QChar digit) { return digit.isLetter(); });
    return hasLetter || (digits.size() > 1 && digits.startsWith(QLatin1Char('0')));
}

PastedBytes readParts(const QStringList &parts)
{
    const Notation notation = notationOf(parts.first());
    QByteArray digits;
    for (const QString &part : parts) {
        const Notation its = notationOf(part);
        const QString own = digitsOfPart(part, its);
        if (!isHex(own)) {
            return faulty(PasteFault::NoByte, part);
        }
        if (its != notation) {
            return faulty(PasteFault::Mixed, part);
        }
        if (own.size() % 2 != 0) {
            return faulty(PasteFault::MissingDigit, part);
        }
        digits += own.toLatin1();
    }
    return {QByteArray::fromHex(digits)};
}

PastedBytes readNumbers(const QString &text)
{
    const Listing listing = listingOf(text);
    const QStringList parts = partsOf(listing.text);
    if (parts.isEmpty()) {
        return faulty(PasteFault::NoByte, text);
    }
    const PastedBytes read = readParts(parts);
    const bool isUnmarked = notationOf(parts.first()) == Notation::Plain;
    const bool mayBeDecimal =
        listing.isList && isUnmarked && std::none_of(parts.cbegin(), parts.cend(), showsHex);
    const bool isNumbers = read.fault == PasteFault::None || read.fault == PasteFault::MissingDigit;
    return mayBeDecimal && isNumbers ? faulty(PasteFault::Ambiguous, text) : read;
}

PastedBytes readLiteral(const QString &text)
{
    const ByteLiteral literal = readByteLiteral(text);
    return literal.badPart.isEmpty() ? PastedBytes{literal.bytes}
                                     : faulty(PasteFault::NoByte, literal.badPart);
}

} // namespace

PastedBytes readPastedBytes(const QString &text)
{
    if (text.size() > mostCharacters) {
        return faulty(PasteFault::TooLong, {});
    }
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty()) {
        return faulty(PasteFault::Nothing, {});
    }
    const PastedBytes read = isByteLiteral(trimmed) ? readLiteral(trimmed) : readNumbers(trimmed);
    const bool isEmpty = read.fault == PasteFault::None && read.bytes.isEmpty();
    if (isEmpty) {
        return faulty(PasteFault::NoByte, trimmed);
    }
    return read.bytes.size() > mostPastedBytes ? faulty(PasteFault::TooLong, {}) : read;
}

#include "expectations/directive.h"

#include "expectations/values.h"

#include <QHash>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace {

constexpr int markSize = 3;

/// A part of a line, and the column that it begins at.
struct LinePart
{
    QString text;
    int column = 1;
};

std::optional<LineFault> faultOfCharacters(const QByteArray &line)
{
    const auto isBad = [](char byte) {
        return static_cast<quint8>(byte) > 0x7E ||
               (static_cast<quint8>(byte) < ' ' && byte != '\t');
    };
    const auto bad = std::find_if(line.begin(), line.end(), isBad);
    if (bad == line.end()) {
        return std::nullopt;
    }
    return LineFault{static_cast<int>(bad - line.begin()) + 1,
                     QStringLiteral("only plain ASCII characters may stand here")};
}

/// The parts of what follows the mark, which two blanks or a tab separate.
QVector<LinePart> partsBehindMark(const QByteArray &line)
{
    static const QRegularExpression part(QStringLiteral("[^ \t]+( [^ \t]+)*"));
    QVector<LinePart> parts;
    const QString text = QString::fromLatin1(line.mid(markSize));
    for (auto match = part.globalMatch(text); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        parts.append({found.captured(), found.capturedStart() + markSize + 1});
    }
    return parts;
}

Directive::Kind kindOfMark(char mark)
{
    switch (mark) {
    case '+':
        return Directive::Kind::Further;
    case '!':
        return Directive::Kind::Forbidden;
    default:
        return Directive::Kind::Reply;
    }
}

bool saysWithin(const QString &text)
{
    return text.section(QLatin1Char(' '), 0, 0) == QLatin1String("within");
}

/// Takes a value over; the words of a fault, if there is one.
using TakeValue = QString (*)(const QString &value, FileSettings &settings);

template<std::optional<bool> FileSettings::*Member>
QString takeSwitch(const QString &value, FileSettings &settings)
{
    settings.*Member = switchOf(value);
    return settings.*Member ? QString() : QStringLiteral("\"%1\" is neither on nor off").arg(value);
}

template<std::optional<int> FileSettings::*Member, int least>
QString takeTime(const QString &value, FileSettings &settings)
{
    settings.*Member = numberOf(value, least, longestTimeMs);
    return settings.*Member ? QString()
                            : QStringLiteral("\"%1\" is no time from %2 to %3 ms")
                                  .arg(value)
                                  .arg(least)
                                  .arg(longestTimeMs);
}

QString takeStart(const QString &value, FileSettings &settings)
{
    settings.withStartBytes = value != QLatin1String("none");
    settings.startBytes = startBytesOf(value);
    return settings.startBytes || !*settings.withStartBytes
               ? QString()
               : QStringLiteral("\"%1\" is neither two bytes such as 5AA5 nor none").arg(value);
}

/// Reads one setting, "crc=on"; the words of a fault, if there is one.
QString takeSetting(const QString &setting, FileSettings &settings)
{
    static const QHash<QString, TakeValue> known{
        {"crc", takeSwitch<&FileSettings::withCrc>},
        {"length", takeSwitch<&FileSettings::withLength>},
        {"start", takeStart},
        {"reply-timeout", takeTime<&FileSettings::replyTimeoutMs, 1>},
        {"interval", takeTime<&FileSettings::intervalMs, 0>},
        {"cycle-delay", takeTime<&FileSettings::cycleDelayMs, 0>},
        {"gap", takeTime<&FileSettings::gapMs, 1>},
    };
    const QString name = setting.section(QLatin1Char('='), 0, 0);
    const TakeValue take = known.value(name);
    return take != nullptr ? take(setting.section(QLatin1Char('='), 1), settings)
                           : QStringLiteral("there is no setting \"%1\"").arg(name);
}

} // namespace

Parsed<Directive> parseDirective(const QByteArray &line)
{
    using Result = Parsed<Directive>;
    if (const auto fault = faultOfCharacters(line)) {
        return {std::nullopt, *fault};
    }
    const QVector<LinePart> parts = partsBehindMark(line);
    if (parts.isEmpty()) {
        return Result::failed(markSize + 1, QStringLiteral("bytes are missing"));
    }
    const Parsed<BytePattern> pattern = BytePattern::parse(parts.first().text);
    if (!pattern.value) {
        return Result::failed(parts.first().column + pattern.fault.column - 1, pattern.fault.words);
    }
    Directive directive{kindOfMark(line.at(markSize - 1)), {*pattern.value, std::nullopt}};
    if (parts.size() > 1 && saysWithin(parts.at(1).text)) {
        const LinePart &time = parts.at(1);
        directive.frame.withinMs =
            numberOf(time.text.section(QLatin1Char(' '), 1), 1, longestTimeMs);
        if (!directive.frame.withinMs) {
            return Result::failed(
                time.column,
                QStringLiteral("\"within\" needs a time from 1 to %1 ms, and two blanks "
                               "before a remark")
                    .arg(longestTimeMs));
        }
    }
    return {directive, {}};
}

Parsed<FileSettings> parseRunLine(const QByteArray &line)
{
    using Result = Parsed<FileSettings>;
    if (const auto fault = faultOfCharacters(line)) {
        return {std::nullopt, *fault};
    }
    const LinePart head = partsBehindMark(line).value(0);
    FileSettings settings;
    int column = head.column;
    const QStringList words = head.text.split(QLatin1Char(' '));
    for (int i = 0; i < words.size(); ++i) {
        QString fault;
        if (i == 1 && words.at(i) != QLatin1String("1")) {
            fault = QStringLiteral("version %1 is not known, only 1 is").arg(words.at(i));
        } else if (i > 1) {
            fault = takeSetting(words.at(i), settings);
        }
        if (!fault.isEmpty()) {
            return Result::failed(column, fault);
        }
        column += words.at(i).size() + 1;
    }
    if (words.size() < 2) {
        return Result::failed(column, QStringLiteral("the version is missing: tarnwick-run 1"));
    }
    return {settings, {}};
}

#include "widgets/celltiptext.h"

#include <QStringList>

namespace {

constexpr int bytesOfFirstChoice = 16;
constexpr int digitsOfByte = 2;

int skipped(const QString &text, int from, int atMost, bool blanks)
{
    int end = from;
    while (end < text.size() && end - from < atMost && text.at(end).isSpace() == blanks) {
        ++end;
    }
    return end;
}

/// The end of a byte, a word, or so many characters of a longer one, and the blanks behind it.
int endOfRun(const QString &text, int from, int mostCharacters)
{
    const int begin = skipped(text, from, text.size(), true);
    const int end = skipped(text, begin, mostCharacters, false);
    return skipped(text, end, text.size(), true);
}

QStringList wrapped(const QString &text, int bytesPerLine)
{
    QStringList lines;
    QString line;
    int bytes = 0;
    for (int from = 0; from < text.size();) {
        const int end = endOfRun(text, from, digitsOfByte * bytesPerLine);
        const QString run = text.mid(from, end - from);
        const int bytesOfRun = (run.trimmed().size() + 1) / digitsOfByte;
        if (!line.isEmpty() && bytes + bytesOfRun > bytesPerLine) {
            lines.append(line);
            line.clear();
            bytes = 0;
        }
        line.append(run);
        bytes += bytesOfRun;
        from = end;
    }
    lines.append(line);
    return lines;
}

} // namespace

QString cellTipText(const QString &text, const TipRoom &room)
{
    int bytes = bytesOfFirstChoice;
    QStringList lines = wrapped(text, bytes);
    while (lines.size() > room.lines && bytes + bytesOfFirstChoice <= room.bytesPerLine) {
        bytes += bytesOfFirstChoice;
        lines = wrapped(text, bytes);
    }
    if (lines.size() > room.lines && room.lines > 0) {
        lines = lines.mid(0, room.lines);
        lines.last() = QStringLiteral("…");
    }
    return lines.join(QLatin1Char('\n'));
}

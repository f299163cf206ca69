#include "log/fieldcutter.h"

#include "frames/hextext.h"

#include <QStringList>

#include <optional>

namespace {

constexpr QChar cutMark = QLatin1Char('/');
constexpr int shortestWithAddress = 22;
constexpr int charactersOfCrc = 6;

/// Where a text is cut in front of its fields, each place counted with the cut marks before it. The
/// CRC is always the end of the text. See docs/deliberate.md, Fixed cuts.
struct CutPoints
{
    int length;
    int cmd;
    std::optional<int> addr;
    int data;
};

constexpr CutPoints withoutAddress{5, 9, std::nullopt, 13};
constexpr CutPoints withAddress{5, 9, 13, 20};
constexpr CutPoints withLongLength{8, 15, 19, 27};

void cutAt(QString &text, int position)
{
    if (position >= 0 && position <= text.size()) {
        text.insert(position, cutMark);
    }
}

QStringList cutIntoPieces(QString text, const CutPoints &points)
{
    cutAt(text, points.length);
    cutAt(text, points.cmd);
    if (points.addr) {
        cutAt(text, *points.addr);
    }
    cutAt(text, points.data);
    cutAt(text, text.size() - charactersOfCrc);
    return text.split(cutMark);
}

FrameFields cutIntoFields(const QString &text, const CutPoints &points)
{
    const QStringList pieces = cutIntoPieces(text, points);
    int next = 0;
    const auto nextPiece = [&] { return pieces.value(next++); };
    FrameFields fields;
    fields.header = nextPiece();
    fields.length = nextPiece();
    fields.cmd = nextPiece();
    fields.addr = points.addr ? withoutBlanks(nextPiece()) : QString();
    fields.data = nextPiece();
    fields.crc = nextPiece();
    return fields;
}

FrameFields withCrcInItsPlace(FrameFields fields, bool withCrc)
{
    if (!withCrc) {
        fields.data += fields.crc;
        fields.crc.clear();
    }
    return fields;
}

FrameFields cutFrame(const QString &text)
{
    return cutIntoFields(text, text.size() < shortestWithAddress ? withoutAddress : withAddress);
}

} // namespace

FrameFields cutSentFrame(const QString &hexText, bool withCrc)
{
    FrameFields fields = cutFrame(hexText);
    if (fields.addr == QLatin1String("00")) {
        fields = cutIntoFields(hexText, withLongLength);
    }
    return withCrcInItsPlace(fields, withCrc);
}

FrameFields cutReceivedFrame(const QString &hexText, bool withCrc)
{
    const QString text = QString(hexText).remove(QLatin1Char('\n'));
    return withCrcInItsPlace(cutFrame(text), withCrc);
}

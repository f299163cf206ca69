#include "links/hid/deviceids.h"

#include "links/hid/hidpacket.h"
#include "system/filereader.h"

#include <QFileInfo>
#include <QSaveFile>

namespace {

constexpr int digitsOfId = 4;

quint16 idAfter(QLatin1String marker, const QString &text)
{
    const int found = text.indexOf(marker);
    if (found < 0) {
        return 0;
    }
    const QString digits = text.mid(found + marker.size(), digitsOfId);
    return digits.size() == digitsOfId ? digits.toUShort(nullptr, 16) : quint16(0);
}

/// Calls `take` with each line, without its end, until it returns false. A line end at the end of
/// the content does not begin another line.
template<typename Take>
void forEachLine(const QByteArray &content, Take take)
{
    int begin = 0;
    while (begin < content.size()) {
        const int lineFeed = content.indexOf('\n', begin);
        const int end = lineFeed < 0 ? content.size() : lineFeed;
        if (!take(QString::fromLatin1(content.mid(begin, end - begin)))) {
            return;
        }
        begin = end + 1;
    }
}

int packetSizeOfLine(const QString &line)
{
    const int size = line.mid(line.lastIndexOf(QLatin1Char(',')) + 1).toInt();
    return size >= 1 && size <= longestReport ? size : defaultPacketSize;
}

void createDeviceIdFile(const QString &fileName)
{
    QSaveFile file(fileName);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(defaultDeviceIdFile());
        file.commit();
    }
}

/// Empty where the file can't be read as a whole.
QByteArray contentOf(const QString &fileName)
{
    constexpr int largestDeviceIdFile = 8 * 1024 * 1024;
    return readFile(fileName, largestDeviceIdFile).bytes;
}

} // namespace

DeviceIds parseDeviceIds(const QString &text)
{
    const QString upper = text.toUpper();
    return {idAfter(QLatin1String("VID_"), upper), idAfter(QLatin1String("PID_"), upper)};
}

QString deviceIdsText(DeviceIds ids)
{
    return QString::asprintf("VID_%04X&PID_%04X", ids.vendor, ids.product);
}

QByteArray defaultDeviceIdFile()
{
    return QByteArrayLiteral("VID_EEEF,PID_2929,512\nVID_EEEF,PID_1616,64");
}

QVector<DeviceIds> parseDeviceIdFile(const QByteArray &content)
{
    QVector<DeviceIds> list;
    forEachLine(content, [&list](const QString &line) {
        list.append(parseDeviceIds(line));
        return true;
    });
    return list;
}

int packetSizeIn(const QByteArray &content, DeviceIds ids)
{
    int size = defaultPacketSize;
    forEachLine(content, [&size, ids](const QString &line) {
        const bool matches = parseDeviceIds(line) == ids;
        size = matches ? packetSizeOfLine(line) : size;
        return !matches;
    });
    return size;
}

QVector<DeviceIds> readDeviceIdFile(const QString &fileName)
{
    if (fileName.isEmpty()) {
        return {};
    }
    if (!QFileInfo::exists(fileName)) {
        createDeviceIdFile(fileName);
    }
    return parseDeviceIdFile(contentOf(fileName));
}

int readPacketSize(const QString &fileName, DeviceIds ids)
{
    return packetSizeIn(contentOf(fileName), ids);
}

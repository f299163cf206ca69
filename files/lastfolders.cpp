#include "files/lastfolders.h"

#include "files/filesaver.h"
#include "files/linedecoder.h"
#include "system/filereader.h"

#include <QDir>
#include <QList>

namespace {

QString textOf(const QByteArray &line)
{
    const DecodedLine utf8 = decodeLine(utf8Codec(), line);
    return utf8.valid ? utf8.text : decodeLine(fallbackCodec(), line).text;
}

/// The text of a line of the record, counted from 0; empty when there is no such line.
QString lineOf(const QByteArray &record, int number)
{
    const bool isMarked = record.startsWith(byteOrderMark);
    const QByteArray text = isMarked ? record.mid(byteOrderMark.size()) : record;
    return textOf(text.split('\n').value(number));
}

QByteArray recordOf(const QString &loadFolder, const QString &saveFolder)
{
    return byteOrderMark + loadFolder.toUtf8() + '\n' + saveFolder.toUtf8() + '\n';
}

QString recordPath(const QString &dataFolder)
{
    return QDir(dataFolder).filePath(QStringLiteral("lastCommand_path.ini"));
}

QByteArray readRecord(const QString &dataFolder)
{
    constexpr int largestRecord = 64 * 1024;
    return readFile(recordPath(dataFolder), largestRecord).bytes;
}

} // namespace

QString folderOf(const QString &fileName)
{
    constexpr int longestFolder = 1024;
    const QString folder = fileName.left(fileName.lastIndexOf(QLatin1Char('/')) + 1);
    return folder.size() > longestFolder ? QString() : folder;
}

QByteArray recordWithLoadFolder(const QByteArray &record, const QString &folder)
{
    return recordOf(folder, lineOf(record, 1));
}

QByteArray recordWithSaveFolder(const QByteArray &record, const QString &folder)
{
    return recordOf(lineOf(record, 0), folder);
}

void recordLoadFolder(const QString &dataFolder, const QString &folder)
{
    saveFile(recordPath(dataFolder), recordWithLoadFolder(readRecord(dataFolder), folder));
}

void recordSaveFolder(const QString &dataFolder, const QString &folder)
{
    saveFile(recordPath(dataFolder), recordWithSaveFolder(readRecord(dataFolder), folder));
}

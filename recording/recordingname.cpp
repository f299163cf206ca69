#include "recording/recordingname.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace {

constexpr int longestPort = 40;
constexpr int numberDigits = 3;
constexpr int decimal = 10;

QString stampOf(const QDateTime &localTime)
{
    return localTime.toString(QStringLiteral("yyyyMMdd-HHmmss"));
}

/// The last part of a path, without what file names had better not have.
QString portOf(const QString &link)
{
    static const QRegularExpression folders(QStringLiteral("^.*[/\\\\](?=[^/\\\\]+$)"));
    static const QRegularExpression unusual(QStringLiteral("[^A-Za-z0-9._-]+"));
    QString port = link;
    port.remove(folders).replace(unusual, QStringLiteral("_")).truncate(longestPort);
    return port.isEmpty() ? QStringLiteral("none") : port;
}

QString withNextNumber(const QString &stem)
{
    static const QRegularExpression numbered(QStringLiteral("^(.*)-([0-9]{3,9})$"));
    const QRegularExpressionMatch match = numbered.match(stem);
    const int number = match.hasMatch() ? match.captured(2).toInt() : 1;
    const QString beginning = match.hasMatch() ? match.captured(1) : stem;
    return QStringLiteral("%1-%2").arg(beginning).arg(number + 1, numberDigits, decimal,
                                                      QLatin1Char('0'));
}

} // namespace

QString proposedRecordingName(const QDateTime &localTime, const QString &link,
                              RecordingFormat format)
{
    const QString ending =
        format == RecordingFormat::Pcapng ? QStringLiteral(".pcapng") : QStringLiteral(".jsonl");
    return QStringLiteral("tarnwick-") + stampOf(localTime) + QLatin1Char('-') + portOf(link) +
           QStringLiteral("-001") + ending;
}

QString nextRecordingPath(const QString &path, const QDateTime &localTime)
{
    static const QRegularExpression stamped(QStringLiteral("^tarnwick-[0-9]{8}-[0-9]{6}-"));
    const QFileInfo file(path);
    QString stem = withNextNumber(file.completeBaseName());
    stem.replace(stamped, QStringLiteral("tarnwick-") + stampOf(localTime) + QLatin1Char('-'));
    const QString ending = file.suffix().isEmpty() ? QString() : QLatin1Char('.') + file.suffix();
    return file.path() + QLatin1Char('/') + stem + ending;
}

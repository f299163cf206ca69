#include "recording/csvexport.h"

#include "frames/messages.h"
#include "frames/timeunits.h"
#include "recording/eventnames.h"
#include "recording/recordingreader.h"
#include "recording/utctext.h"

#include <QIODevice>
#include <QStringList>

namespace {

constexpr int batchBytes = 64 * 1024;

QByteArray csvField(const QString &text)
{
    QByteArray field = text.toUtf8();
    const bool needsQuotes =
        field.contains('"') || field.contains(',') || field.contains('\n') || field.contains('\r');
    return needsQuotes ? '"' + field.replace('"', "\"\"") + '"' : field;
}

/// Seconds with six digits behind the point.
QByteArray csvSeconds(double nanoseconds)
{
    constexpr int digits = 6;
    return QByteArray::number(nanoseconds / nsPerSecond, 'f', digits);
}

QString csvWords(const RecordEvent &event)
{
    QStringList words;
    for (const QString &text : {event.link, event.settings, event.text}) {
        if (!text.isEmpty()) {
            words += text;
        }
    }
    return words.join(QLatin1String(", "));
}

} // namespace

QByteArray csvHead()
{
    return "\xEF\xBB\xBFtime,delta_s,event,bytes,crc,row,text\r\n";
}

QByteArray csvLine(const RecordEvent &event, std::optional<ArrivalTime> before)
{
    // Times of a foreign file may be any numbers, which a double takes.
    const QByteArray delta = before ? csvSeconds(static_cast<double>(event.time.monotonicNs) -
                                                 static_cast<double>(before->monotonicNs))
                                    : QByteArray();
    const QByteArray crc = event.hasBytes() ? crcName(event.crc) : QByteArray();
    const QByteArray row = event.row > 0 ? QByteArray::number(event.row) : QByteArray();
    return utcText(event.time.utcUs) + ',' + delta + ',' + eventName(event.kind) + ',' +
           event.bytes.toHex(' ').toUpper() + ',' + crc + ',' + row + ',' +
           csvField(csvWords(event)) + "\r\n";
}

CsvExport exportCsv(QIODevice &recording, QIODevice &csv, const std::function<bool()> &mayGoOn)
{
    const auto reader = makeRecordingReader(recording);
    CsvExport outcome;
    QByteArray lines = csvHead();
    std::optional<ArrivalTime> before;
    bool isWritten = true;
    for (auto event = reader->next(); event && isWritten; event = reader->next()) {
        lines += csvLine(*event, before);
        before = event->time;
        ++outcome.events;
        if (lines.size() >= batchBytes) {
            if (mayGoOn && !mayGoOn()) {
                outcome.error = Messages::tr("it was given up");
                return outcome;
            }
            isWritten = csv.write(lines) == lines.size();
            lines.clear();
        }
    }
    isWritten = isWritten && csv.write(lines) == lines.size();
    outcome.isTorn = reader->isTorn();
    outcome.error = isWritten ? reader->error() : csv.errorString();
    return outcome;
}

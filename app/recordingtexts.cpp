#include "app/recordingtexts.h"

#include "frames/messages.h"
#include "recording/csvexport.h"
#include "recording/recordingjob.h"

#include <QFileInfo>
#include <QLocale>
#include <QStringList>

namespace {

/// Larger units are called the same in each language.
QString sizeText(qint64 bytes)
{
    constexpr int digits = 1;
    constexpr int kilobyte = 1024;
    if (bytes < kilobyte) {
        return Messages::tr("%1 bytes").arg(bytes);
    }
    return QLocale::c().formattedDataSize(bytes, digits, QLocale::DataSizeTraditionalFormat);
}

QString countText(qint64 events)
{
    return events == 1 ? Messages::tr("1 event") : Messages::tr("%1 events").arg(events);
}

} // namespace

QString describeRecording(const RecordingStatus &status, bool isRecording)
{
    QStringList parts;
    if (!status.error.isEmpty()) {
        parts += Messages::tr("Stopped: %1").arg(Messages::shown(status.error));
    } else if (!isRecording) {
        parts += Messages::tr("Recorded");
    }
    if (status.droppedEvents > 0) {
        parts += Messages::tr("%1 dropped").arg(countText(status.droppedEvents));
    }
    parts += sizeText(status.bytes);
    parts += countText(status.events);
    return parts.join(QLatin1String(", "));
}

QString whyRecordingStopped(const RecordingStatus &status)
{
    return Messages::tr("The recording %1 has stopped: %2.")
        .arg(QFileInfo(status.path).fileName(), Messages::shown(status.error));
}

QString describeExport(const CsvExport &outcome, const QString &fileName)
{
    const QString name = QFileInfo(fileName).fileName();
    if (!outcome.error.isEmpty()) {
        return Messages::tr("%1 was not exported: %2.").arg(name, Messages::shown(outcome.error));
    }
    const QString words = Messages::tr("%1 exported to %2.").arg(countText(outcome.events), name);
    return outcome.isTorn ? words + QLatin1Char(' ') +
                                Messages::tr("The recording was cut off within its last event.")
                          : words;
}

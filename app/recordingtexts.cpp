#include "app/recordingtexts.h"

#include "recording/csvexport.h"
#include "recording/recordingjob.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>
#include <QStringList>

namespace {

QString inRecordingTexts(const char *text)
{
    return QCoreApplication::translate("RecordingTexts", text);
}

QString sizeText(qint64 bytes)
{
    constexpr int digits = 1;
    return QLocale::c().formattedDataSize(bytes, digits, QLocale::DataSizeTraditionalFormat);
}

QString countText(qint64 events)
{
    return events == 1 ? inRecordingTexts("1 event") : inRecordingTexts("%1 events").arg(events);
}

} // namespace

QString describeRecording(const RecordingStatus &status, bool isRecording)
{
    QStringList parts;
    if (!status.error.isEmpty()) {
        parts += inRecordingTexts("Stopped: %1").arg(status.error);
    } else if (!isRecording) {
        parts += inRecordingTexts("Recorded");
    }
    if (status.droppedEvents > 0) {
        parts += inRecordingTexts("%1 dropped").arg(countText(status.droppedEvents));
    }
    parts += sizeText(status.bytes);
    parts += countText(status.events);
    return parts.join(QLatin1String(", "));
}

QString whyRecordingStopped(const RecordingStatus &status)
{
    return inRecordingTexts("The recording %1 has stopped: %2.")
        .arg(QFileInfo(status.path).fileName(), status.error);
}

QString describeExport(const CsvExport &outcome, const QString &fileName)
{
    const QString name = QFileInfo(fileName).fileName();
    if (!outcome.error.isEmpty()) {
        return inRecordingTexts("%1 was not exported: %2.").arg(name, outcome.error);
    }
    const QString words =
        inRecordingTexts("%1 exported to %2.").arg(countText(outcome.events), name);
    return outcome.isTorn ? words + QLatin1Char(' ') +
                                inRecordingTexts("The recording was cut off within its last event.")
                          : words;
}

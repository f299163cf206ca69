#include "runner/conversion.h"

#include "recording/csvexport.h"
#include "recording/recordingreader.h"
#include "recording/recordingwriter.h"
#include "system/regularfile.h"

#include <QFile>
#include <QSaveFile>

namespace {

Conversion refused(const QString &name, const QString &why)
{
    return {ExitCode::WrongInput, QStringLiteral("%1: %2").arg(name, why)};
}

/// What the reader has to say at the end of the recording, by its name.
Conversion endOf(const QString &name, bool isTorn, const QString &error)
{
    if (!error.isEmpty()) {
        return refused(name, error);
    }
    return {ExitCode::Good,
            isTorn ? QStringLiteral("%1: it ends within an event").arg(name) : QString()};
}

Conversion writeCsv(QFile &in, const QString &from, QIODevice &out)
{
    const CsvExport result = exportCsv(in, out);
    return endOf(from, result.isTorn, result.error);
}

Conversion writeRecording(QFile &in, const QString &from, QIODevice &out, RecordingFormat format)
{
    const std::unique_ptr<RecordingReader> reader = makeRecordingReader(in);
    const std::unique_ptr<RecordingWriter> writer = makeRecordingWriter(format);
    std::optional<RecordEvent> event = reader->next();
    out.write(writer->head(reader->head()));
    for (; event; event = reader->next()) {
        QByteArray bytes;
        writer->append(bytes, *event);
        out.write(bytes);
    }
    if (reader->tail()) {
        out.write(writer->tail(*reader->tail()));
    }
    return endOf(from, reader->isTorn(), reader->error());
}

} // namespace

Conversion convertRecording(const QString &from, const QString &to)
{
    QFile in;
    if (!openRegularFile(in, from, QIODevice::ReadOnly)) {
        return refused(from, QStringLiteral("it can't be read"));
    }
    QSaveFile out(to);
    if (!out.open(QIODevice::WriteOnly)) {
        return {ExitCode::NotWritten, QStringLiteral("%1: %2").arg(to, out.errorString())};
    }
    const bool isCsv = to.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
    const Conversion result =
        isCsv ? writeCsv(in, from, out) : writeRecording(in, from, out, recordingFormatOf(to));
    // On Windows a file that is open can't be replaced.
    in.close();
    if (result.code == ExitCode::Good && !out.commit()) {
        return {ExitCode::NotWritten, QStringLiteral("%1: %2").arg(to, out.errorString())};
    }
    return result;
}

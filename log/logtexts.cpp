#include "log/logtexts.h"

#include "frames/hextext.h"
#include "log/fieldcutter.h"

#include <algorithm>

namespace {

LogTexts textsOf(int number, const FrameFields &fields)
{
    return {QString::number(number),
            fields.header,
            fields.length,
            fields.cmd,
            fields.addr,
            fields.data,
            fields.crc};
}

LogTexts textsOf(const QString &label, const QString &text)
{
    LogTexts texts;
    texts[LogColumn::Number] = label;
    texts[LogColumn::Data] = text;
    return texts;
}

} // namespace

LogTexts textsOf(const LogRecord &record)
{
    switch (record.kind) {
    case LogRecord::Kind::Sent:
        return textsOf(record.number, cutSentFrame(formatHexBytes(record.bytes), record.withCrc));
    case LogRecord::Kind::Received:
        return textsOf(record.number,
                       cutReceivedFrame(formatHexBytes(record.bytes), record.withCrc));
    case LogRecord::Kind::Stray:
        return textsOf(QString::number(record.number), formatHexBytes(record.bytes));
    case LogRecord::Kind::Event:
        break;
    }
    return textsOf(record.source, record.text.english);
}

LogTexts shownTextsOf(const LogRecord &record)
{
    return record.kind == LogRecord::Kind::Event ? textsOf(record.source, record.text.shown)
                                                 : textsOf(record);
}

QVector<LogTexts> textsOf(const QVector<LogRecord> &records)
{
    QVector<LogTexts> all(records.size());
    std::transform(records.begin(), records.end(), all.begin(),
                   [](const LogRecord &record) { return textsOf(record); });
    return all;
}

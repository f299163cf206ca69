#include "app/messagecopy.h"

#include "files/messagefile.h"
#include "log/logtexts.h"
#include "log/messagelog.h"
#include "log/recordlog.h"

#include <QApplication>
#include <QClipboard>
#include <QShortcut>
#include <QTableWidget>

namespace {

QString directionMark(LogRecord::Kind kind)
{
    switch (kind) {
    case LogRecord::Kind::Sent:
        return QStringLiteral("TX ");
    case LogRecord::Kind::Received:
    case LogRecord::Kind::Stray:
        return QStringLiteral("RX ");
    case LogRecord::Kind::Event:
        break;
    }
    return {};
}

} // namespace

MessageCopy::MessageCopy(QTableWidget &table, MessageLog &log, const RecordLog &records,
                         QObject *parent)
    : QObject(parent)
    , m_table(table)
    , m_log(log)
    , m_records(records)
{
    auto *copy = new QShortcut(QKeySequence::Copy, &m_table);
    copy->setContext(Qt::WidgetShortcut);
    connect(copy, &QShortcut::activated, this, &MessageCopy::copySelectedRows);
}

void MessageCopy::copySelectedRows()
{
    m_log.bringIn();
    const QItemSelectionModel &selection = *m_table.selectionModel();
    QString text;
    for (int row = 0; row < m_records.count(); ++row) {
        const LogRecord &record = m_records.records().at(row);
        const QString line =
            selection.isRowSelected(row, {}) ? messageLine(textsOf(record)) : QString();
        if (!line.isEmpty()) {
            text += directionMark(record.kind) + line + QLatin1Char('\n');
        }
    }
    QApplication::clipboard()->setText(text);
}

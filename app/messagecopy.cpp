#include "app/messagecopy.h"

#include "files/messagefile.h"
#include "log/logtexts.h"
#include "log/messagelog.h"
#include "log/recordlog.h"
#include "log/timecolumn.h"

#include <QApplication>
#include <QClipboard>
#include <QTableWidget>

#include <algorithm>

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

/// The log may have emptied itself since the menu was opened: then what was copied before stays.
void putOnClipboard(const QString &text)
{
    if (!text.isEmpty()) {
        QApplication::clipboard()->setText(text);
    }
}

} // namespace

MessageCopy::MessageCopy(QTableWidget &table, MessageLog &log, const RecordLog &records)
    : m_table(table)
    , m_log(log)
    , m_records(records)
{}

bool MessageCopy::hasData() const
{
    const QVector<int> rows = selectedRows();
    return std::any_of(rows.begin(), rows.end(),
                       [this](int row) { return !dataOf(m_records.records().at(row)).isEmpty(); });
}

void MessageCopy::copyRows() const
{
    QString text;
    for (const int row : selectedRows()) {
        const LogRecord &record = m_records.records().at(row);
        const QString line = messageLine(textsOf(record));
        if (!line.isEmpty()) {
            text += directionMark(record.kind) + line +
                    copiedTimeText(rowTimeOf(m_records.records(), row)) + QLatin1Char('\n');
        }
    }
    putOnClipboard(text);
}

void MessageCopy::copyData(DataForm form) const
{
    QVector<QByteArray> data;
    for (const int row : selectedRows()) {
        data.append(dataOf(m_records.records().at(row)));
    }
    putOnClipboard(dataText(data, form));
}

QVector<int> MessageCopy::selectedRows() const
{
    m_log.bringIn();
    const QItemSelectionModel &selection = *m_table.selectionModel();
    QVector<int> selected;
    for (int row = 0; row < m_records.count(); ++row) {
        if (selection.isRowSelected(row, {}) && !m_table.isRowHidden(row)) {
            selected.append(row);
        }
    }
    return selected;
}

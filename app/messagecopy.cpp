#include "messagecopy.h"

#include "messagefile.h"
#include "messagelog.h"

#include <QApplication>
#include <QClipboard>
#include <QShortcut>
#include <QTableWidget>

namespace {

QString directionMark(MessageLog::Direction direction)
{
    switch (direction) {
    case MessageLog::Direction::Sent:
        return QStringLiteral("TX ");
    case MessageLog::Direction::Received:
        return QStringLiteral("RX ");
    case MessageLog::Direction::None:
        break;
    }
    return {};
}

} // namespace

MessageCopy::MessageCopy(QTableWidget &table, MessageLog &log, QObject *parent)
    : QObject(parent)
    , m_table(table)
    , m_log(log)
{
    auto *copy = new QShortcut(QKeySequence::Copy, &m_table);
    copy->setContext(Qt::WidgetShortcut);
    connect(copy, &QShortcut::activated, this, &MessageCopy::copySelectedRows);
}

void MessageCopy::copySelectedRows()
{
    const QVector<MessageRow> rows = m_log.rows();
    const QItemSelectionModel &selection = *m_table.selectionModel();
    QString text;
    for (int row = 0; row < rows.size(); ++row) {
        const QString line = messageLine(rows.at(row));
        if (selection.isRowSelected(row, {}) && !line.isEmpty()) {
            text += directionMark(m_log.direction(row)) + line + QLatin1Char('\n');
        }
    }
    QApplication::clipboard()->setText(text);
}

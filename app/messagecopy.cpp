#include "messagecopy.h"

#include "messagefile.h"
#include "messagelog.h"

#include <QApplication>
#include <QClipboard>
#include <QShortcut>
#include <QTableWidget>

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
    QVector<MessageRow> selected;
    for (int row = 0; row < rows.size(); ++row) {
        if (selection.isRowSelected(row, {})) {
            selected.append(rows.at(row));
        }
    }
    QApplication::clipboard()->setText(messageFileText(selected));
}

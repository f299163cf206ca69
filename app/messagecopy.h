#pragma once

#include <QObject>

class MessageLog;
class QTableWidget;
class RecordLog;

/// The copy key in the message log: puts the selected rows on the clipboard, each as a saved log
/// would show it, with "TX" or "RX" in front of what was sent or received.
class MessageCopy : public QObject
{
    Q_OBJECT

public:
    /// The table is the log's, which shows the records; all must outlive this.
    MessageCopy(QTableWidget &table, MessageLog &log, const RecordLog &records,
                QObject *parent = nullptr);

private:
    void copySelectedRows();

    QTableWidget &m_table;
    MessageLog &m_log;
    const RecordLog &m_records;
};

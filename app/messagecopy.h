#pragma once

#include "log/datatext.h"
#include "log/logrecord.h"

#include <QVector>

class MessageLog;
class QTableWidget;
class RecordLog;

/// Puts selected rows of the message log on the clipboard. Rows that are not shown, since they
/// don't match what is looked for, are left out.
class MessageCopy
{
public:
    /// The table is the log's, which shows the records; all must outlive this.
    MessageCopy(QTableWidget &table, MessageLog &log, const RecordLog &records);

    /// Whether rows are selected, and whether one of them has data.
    bool hasRows() const { return !selectedRows().isEmpty(); }
    bool hasData() const;

    /// The rows, each as a saved log would show it, with "TX" or "RX" in front of what was sent or
    /// received, and its time behind it.
    void copyRows() const;

    /// What stands in the rows' Data column, in that form.
    void copyData(DataForm form) const;

private:
    QVector<int> selectedRows() const;

    QTableWidget &m_table;
    MessageLog &m_log;
    const RecordLog &m_records;
};

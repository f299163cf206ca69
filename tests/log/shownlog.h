#pragma once

#include "log/logtable.h"
#include "log/messagelog.h"
#include "log/recordlog.h"

#include <QScrollBar>
#include <QtTest>

/// A log on the screen that has room for seven rows.
struct LogOnScreen
{
    LogOnScreen()
        : log(table, records)
    {
        table.resize(800, 300);
        table.show();
        QVERIFY(QTest::qWaitForWindowExposed(&table));
    }

    /// Appends stray bytes, each with the number of its record's row, from 0.
    void append(int rows)
    {
        const int first = records.count();
        for (int row = first; row < first + rows; ++row) {
            records.appendStray(QByteArray::number(row));
        }
        log.bringIn();
    }

    QScrollBar &bar() const { return *table.verticalScrollBar(); }

    int firstInView() const { return table.rowAt(0); }

    /// Whether the last row that is not hidden is in view as a whole.
    bool showsEnd() const
    {
        int last = table.rowCount() - 1;
        while (last >= 0 && table.isRowHidden(last)) {
            --last;
        }
        const QRect place = table.visualRect(table.model()->index(last, 0));
        return table.viewport()->rect().contains(place) && bar().value() == bar().maximum();
    }

    int shownRows() const
    {
        int shown = 0;
        for (int row = 0; row < table.rowCount(); ++row) {
            shown += table.isRowHidden(row) ? 0 : 1;
        }
        return shown;
    }

    LogTable table;
    RecordLog records;
    MessageLog log;
};

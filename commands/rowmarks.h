#pragma once

#include <QString>

class QTableWidget;

// What a row of the command table carries beside its cells: the item of its description keeps it. A
// row without that item has neither.

/// Which row it is, see CommandRow; 0 while it is none.
int rowId(const QTableWidget &table, int row);
void setRowId(QTableWidget &table, int row, int id);

/// What it is to be answered with, see CommandRow. The tip of the description shows it, without the
/// line that makes it count.
QString rowExpectations(const QTableWidget &table, int row);
void setRowExpectations(QTableWidget &table, int row, const QString &expectations);

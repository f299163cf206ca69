#pragma once

class CellTips;
class QModelIndex;
class QTableWidget;

/// Makes a table tell which cell the mouse enters, and shows the tips of its cells where the mouse
/// rests. That of column 5, the CRC of a command and the data of a message, comes at once instead,
/// by `showInstantTip`. The tips belong to the table.
CellTips *addTableTips(QTableWidget &table);

/// Shows the text of a cell that the mouse has entered, if it is one of that column.
void showInstantTip(const QModelIndex &cell);

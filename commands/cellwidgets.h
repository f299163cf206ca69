#pragma once

class QCheckBox;
class QIcon;
class QObject;
class QPushButton;
class QTableWidget;

/// Puts a new check box into the cell, centred in a container that `filter` watches.
QCheckBox *setSelectCell(QTableWidget &table, int row, int column, bool checked, QObject *filter);

/// The cell's check box; null where there is none.
QCheckBox *selectBox(const QTableWidget &table, int row, int column);

/// Whether the cell's check box is checked; false where there is none.
bool isSelectCellChecked(const QTableWidget &table, int row, int column);

/// Puts a new send button into the cell. Pressing it, or moving to it by keyboard, makes its row
/// the current one, so that what its click sends is the row the user points at.
QPushButton *setSendCell(QTableWidget &table, int row, int column, const QIcon &icon);

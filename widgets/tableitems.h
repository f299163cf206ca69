#pragma once

#include <QHeaderView>
#include <QStringList>
#include <QVector>

class QString;
class QTableWidget;

/// Puts a new item with the text into the cell, centred both ways.
void setCentredItem(QTableWidget &table, int row, int column, const QString &text);

/// Puts a new item with the text into the cell, at its left and centred vertically.
void setLeftItem(QTableWidget &table, int row, int column, const QString &text);

/// The text of a cell's item; empty where there is none.
QString cellText(const QTableWidget &table, int row, int column);

/// How a column of a table is set up.
struct TableColumn
{
    QString header;
    int width = 0;
    QHeaderView::ResizeMode resizeMode = QHeaderView::Fixed;
    bool leftAlignedHeader = false;
};

/// Sets header texts, widths and resize modes of the table's columns.
void setColumns(QTableWidget &table, const QVector<TableColumn> &columns);

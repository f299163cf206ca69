#pragma once

#include "codec/directeditor.h"

#include <QObject>

class CommandTable;
class QTableWidget;

/// Lets the user edit a row of the command table as a typed value.
class RowEditor : public QObject
{
    Q_OBJECT

public:
    /// Table and rows must outlive this; the editor's window belongs to the parent.
    RowEditor(QTableWidget &table, CommandTable &rows, QWidget *parent);

    /// Shows the editor with a row's command, and returns at once.
    void open(int row);

    /// Writes what the editor hands back into a row; a row outside the table is left alone.
    void takeBack(int row);

    const DirectEditor &editor() const { return m_editor; }

private:
    QTableWidget &m_table;
    CommandTable &m_rows;
    DirectEditor m_editor;
};

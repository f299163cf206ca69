#pragma once

#include "commands/rowexchange.h"
#include "frames/sendplan.h"

#include <QIcon>
#include <QObject>
#include <QVector>

class QTableWidget;

/// The command table: its look, and its rows as command rows. The table widget is the data model;
/// what a row carries is in its cells' texts and in its Select box.
class CommandTable : public QObject
{
    Q_OBJECT

public:
    /// Sets the table up with nine empty rows. Table and window must outlive this; the window owns
    /// the cells' delegates and is the event filter of the Select boxes' containers.
    CommandTable(QTableWidget &table, QObject *window, QObject *parent = nullptr);

    /// Inserts an empty row and returns whether it did. Beyond index 512 nothing is inserted, and
    /// the table's signals stay blocked until the user does something in the table: opens an
    /// editor, asks for a menu, or inserts a row within the limit.
    bool insertEmptyRow(int row);

    /// Ends the blocking of the table's signals that a refused insertion has left behind.
    void restoreSignals();

    /// Inserts a row that pauses a sequence for 1000 ms.
    void insertDelayRow(int row);

    /// Inserts a copy of a row, hidden columns and Select box included, behind it.
    void cloneRow(int row);

    /// Moves a row by one place by making a new row of it; a row that has left the table (-1) is
    /// ignored. Returns false for the row at the edge.
    bool moveUp(int row);
    bool moveDown(int row);

    /// Removes all rows and puts nine empty ones in their place.
    void clear();

    /// Replaces all rows; empty rows follow where there are fewer than nine.
    void replaceRows(const QVector<CommandRow> &rows);

    /// Inserts rows and returns whether it did: the last one must not stand beyond index 512.
    bool insertRows(int row, const QVector<CommandRow> &rows);

    /// Puts rows in the place of others, without a signal of the table.
    void exchangeRows(const RowExchange &exchange);

    int rowCount() const;
    CommandRow row(int row) const;
    QVector<CommandRow> rows() const;

    /// Where the row with that identity stands now; -1 where it is gone, and for 0.
    int rowWithId(int id) const;

    /// Gives a row a new Select box.
    void setSelected(int row, bool selected);

    /// CMD, Addr and Data of the current row joined, without blanks; empty without a current row.
    QString currentFrameText() const;

    /// The current row as it is sent.
    CheckedRow currentRow() const;

    /// The rows whose Select box is checked, in order.
    QVector<CheckedRow> checkedRows() const;

    /// Brings the CRC cell of the current row up to date, without a signal of the table.
    /// See docs/deliberate.md, Current row.
    void recomputeCurrentRow();

    /// Writes the address of the current cell in its normal form; other cells are left alone.
    void normaliseCurrentAddress();

    /// Enter ends the editing of the current cell: goes on from Addr to Data, proposing an address
    /// where there is none, and from Data to the next row's Addr.
    void goOnFromCurrentCell();

    /// Writes the data of a row, as an edit does it.
    void writeData(int row, const QByteArray &bytes);

    /// Takes in the text of an editor that is open in a cell, and closes it.
    void takeInEdit();

    /// Writes what the direct editor hands back; a row outside the table is left alone.
    void takeEdited(int row, const CommandRow &edited);

signals:
    /// All rows are about to be replaced by those of another list, and have been.
    void replacing();
    void replaced();

    /// A row's Select box was checked or unchecked, or another one was put into a row.
    void selectChanged(int row);

    /// A cell is about to be edited, and its editor has been closed.
    void editorOpened();
    void editorClosed();

    /// A row was not inserted, since it would stand beyond the last index that is allowed.
    void insertionRefused(const QString &reason);

    /// A row's send button was clicked.
    void sendRequested();

    /// The address in the current cell was edited or confirmed. Edited data are not announced like
    /// this. See docs/deliberate.md, Silent data.
    void addressCommitted();

    /// Enter ended the editing of the current cell.
    void enterPressed();

private:
    CheckedRow checkedRow(int row) const;
    void installDelegates();
    void refuseInsertion();
    void insertFilledRow(int row, const CommandRow &content);
    void putSelectBox(int row, bool selected);
    void fillRow(int row, const CommandRow &content);
    void identify(int row, int id);
    void moveByCopy(int from, int to);
    void edit(int row, int column);

    QTableWidget &m_table;
    QObject *m_window;
    QIcon m_sendIcon;
    int m_lastId = 0;
};

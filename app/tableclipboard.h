#pragma once

#include <QObject>
#include <QString>

class CommandTable;
class QKeySequence;
class QTableWidget;

/// The command table and the clipboard, by key, while no cell is edited. Ctrl+C copies the selected
/// rows as text (see rowsText), Ctrl+V puts such rows below the current one. Ctrl+Shift+V, also in
/// an editor, puts bytes into Data of the current row (see readPastedBytes).
class TableClipboard : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this; the table is the one behind the rows.
    TableClipboard(QTableWidget &table, CommandTable &rows, QObject *parent = nullptr);

signals:
    /// Rows are about to be changed, and have been changed.
    void acting();
    void acted();

    /// Rows were inserted.
    void modified();

    /// Nothing was pasted, for the reason given.
    void refused(const QString &reason);

private:
    template<typename Reaction>
    void addKey(const QKeySequence &key, Reaction reaction);
    void copyRows() const;
    void pasteRows();
    void pasteBytes();

    QTableWidget &m_table;
    CommandTable &m_rows;
};

#include "app/tableclipboard.h"

#include "codec/pastedbytes.h"
#include "commands/commandcolumns.h"
#include "commands/commandtable.h"
#include "commands/rowtext.h"
#include "frames/delaymarker.h"

#include <QApplication>
#include <QClipboard>
#include <QShortcut>
#include <QTableWidget>

#include <algorithm>

namespace {

QString wordsFor(const PastedBytes &read)
{
    switch (read.fault) {
    case PasteFault::Nothing:
        return TableClipboard::tr("There are no bytes to paste.");
    case PasteFault::NoByte:
        return TableClipboard::tr("Not bytes: \"%1\".").arg(read.part);
    case PasteFault::MissingDigit:
        return TableClipboard::tr("A digit is missing in \"%1\": each byte has two.")
            .arg(read.part);
    case PasteFault::Mixed:
        return TableClipboard::tr("\"%1\" is written in another way than what is before it.")
            .arg(read.part);
    case PasteFault::Ambiguous:
        return TableClipboard::tr("%1 may be decimal or hexadecimal: write 0x10 or 10h.")
            .arg(read.part);
    case PasteFault::TooLong:
        return TableClipboard::tr("More than %1 bytes.").arg(mostPastedBytes);
    case PasteFault::None:
        break;
    }
    return {};
}

} // namespace

TableClipboard::TableClipboard(QTableWidget &table, CommandTable &rows, QObject *parent)
    : QObject(parent)
    , m_table(table)
    , m_rows(rows)
{
    addKey(QKeySequence::Copy, [this] { copyRows(); });
    addKey(QKeySequence::Paste, [this] { pasteRows(); });
    addKey(int(Qt::CTRL) + int(Qt::SHIFT) + int(Qt::Key_V), [this] { pasteBytes(); });
}

/// The keys are those of a text where one is edited, except the last, which texts don't know.
template<typename Reaction>
void TableClipboard::addKey(const QKeySequence &key, Reaction reaction)
{
    auto *shortcut = new QShortcut(key, &m_table);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, reaction);
}

void TableClipboard::copyRows() const
{
    QVector<CommandRow> rows;
    for (int row = 0; row < m_rows.rowCount(); ++row) {
        if (m_table.selectionModel()->isRowSelected(row, {})) {
            rows.append(m_rows.row(row));
        }
    }
    if (!rows.isEmpty()) {
        QApplication::clipboard()->setText(rowsText(rows));
    }
}

void TableClipboard::pasteRows()
{
    const PastedRows pasted = readRowsText(QApplication::clipboard()->text());
    if (!pasted.fault.isEmpty()) {
        emit refused(pasted.fault);
        return;
    }
    emit acting();
    const int first = m_table.currentRow() + 1;
    if (m_rows.insertRows(first, pasted.rows)) {
        const int last = first + pasted.rows.size() - 1;
        m_table.setCurrentCell(first, std::max(0, m_table.currentColumn()),
                               QItemSelectionModel::NoUpdate);
        m_table.clearSelection();
        m_table.setRangeSelected({first, 0, last, m_table.columnCount() - 1}, true);
        emit modified();
    }
    emit acted();
}

void TableClipboard::pasteBytes()
{
    m_rows.takeInEdit();
    const int row = m_table.currentRow();
    if (row < 0) {
        return;
    }
    if (isDelay(m_rows.row(row).cmd)) {
        emit refused(tr("This row is a pause: its Data are milliseconds."));
        return;
    }
    const PastedBytes read = readPastedBytes(QApplication::clipboard()->text());
    if (read.fault != PasteFault::None) {
        emit refused(wordsFor(read));
        return;
    }
    emit acting();
    m_rows.writeData(row, read.bytes);
    m_table.scrollToItem(m_table.item(row, CommandColumn::Data));
    emit acted();
}

#include "commands/commandtable.h"

#include "commands/addrdelegate.h"
#include "commands/cellwidgetdelegate.h"
#include "commands/cellwidgets.h"
#include "commands/commandcolumns.h"
#include "commands/datadelegate.h"
#include "commands/oneline.h"
#include "commands/rowmarks.h"
#include "frames/hextext.h"
#include "widgets/tableitems.h"
#include "widgets/tablelook.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

#include <algorithm>

namespace Column = CommandColumn;

namespace {

constexpr int leastRows = 9;
/// See docs/deliberate.md, Blocked signals.
constexpr int lastInsertableRow = 512;

} // namespace

CommandTable::CommandTable(QTableWidget &table, QObject *window, QObject *parent)
    : QObject(parent)
    , m_table(table)
    , m_window(window)
    , m_sendIcon(QStringLiteral(":/Image/Send.png"))
{
    m_table.blockSignals(true);
    styleTable(m_table, Column::Count, leastRows);
    setColumns(m_table, {{tr("Description"), 200},
                         {tr("Select"), 75},
                         {tr("CMD"), 50},
                         {tr("Addr"), 90},
                         {tr("Data"), 90, QHeaderView::Stretch, true},
                         {tr("CRC"), 63},
                         {tr("Send"), 63},
                         {tr("DataType"), 63},
                         {tr("OriginalData"), 150, QHeaderView::Stretch, true}});
    for (int row = 0; row < leastRows; ++row) {
        fillRow(row, emptyRow());
    }
    m_table.setColumnHidden(Column::DataType, true);
    m_table.setColumnHidden(Column::OriginalData, true);
    m_table.blockSignals(false);
    installDelegates();
}

bool CommandTable::insertEmptyRow(int row)
{
    m_table.blockSignals(true);
    if (row > lastInsertableRow) {
        refuseInsertion();
        return false;
    }
    const bool inserted = row >= 0 && row <= m_table.rowCount();
    if (inserted) {
        insertFilledRow(row, emptyRow());
    }
    m_table.blockSignals(false);
    return inserted;
}

void CommandTable::restoreSignals()
{
    m_table.blockSignals(false);
}

void CommandTable::insertDelayRow(int row)
{
    if (insertEmptyRow(row)) {
        fillRow(row, delayRow());
    }
}

void CommandTable::cloneRow(int row)
{
    CommandRow original = this->row(row);
    original.id = 0;
    if (insertEmptyRow(row + 1)) {
        fillRow(row + 1, original);
    }
}

bool CommandTable::moveUp(int row)
{
    if (row == 0) {
        return false;
    }
    if (row > 0) {
        moveByCopy(row, row - 1);
    }
    return true;
}

bool CommandTable::moveDown(int row)
{
    if (row == m_table.rowCount() - 1) {
        return false;
    }
    if (row >= 0) {
        moveByCopy(row, row + 2);
    }
    return true;
}

void CommandTable::clear()
{
    replaceRows({});
}

void CommandTable::replaceRows(const QVector<CommandRow> &rows)
{
    emit replacing();
    m_table.blockSignals(true);
    m_table.setUpdatesEnabled(false);
    m_table.setRowCount(0);
    m_table.setRowCount(std::max(leastRows, rows.size()));
    for (int row = 0; row < m_table.rowCount(); ++row) {
        fillRow(row, row < rows.size() ? rows.at(row) : emptyRow());
    }
    m_table.scrollToTop();
    m_table.setUpdatesEnabled(true);
    m_table.blockSignals(false);
    emit replaced();
}

bool CommandTable::insertRows(int row, const QVector<CommandRow> &rows)
{
    if (row + rows.size() - 1 > lastInsertableRow) {
        refuseInsertion();
        return false;
    }
    exchangeRows({row, 0, rows});
    return true;
}

void CommandTable::exchangeRows(const RowExchange &exchange)
{
    const QSignalBlocker blocker(m_table);
    const int kept = std::min(exchange.removed, exchange.rows.size());
    const int added = exchange.rows.size() - kept;
    m_table.setUpdatesEnabled(false);
    for (int i = 0; i < kept; ++i) {
        const CommandRow &content = exchange.rows.at(i);
        if (row(exchange.row + i) != content) {
            fillRow(exchange.row + i, content);
        } else if (content.id != 0) {
            identify(exchange.row + i, content.id);
        }
    }
    if (exchange.removed > kept) {
        m_table.model()->removeRows(exchange.row + kept, exchange.removed - kept);
    }
    if (added > 0) {
        m_table.model()->insertRows(exchange.row + kept, added);
    }
    for (int i = kept; i < exchange.rows.size(); ++i) {
        fillRow(exchange.row + i, exchange.rows.at(i));
    }
    m_table.setUpdatesEnabled(true);
}

int CommandTable::rowCount() const
{
    return m_table.rowCount();
}

CommandRow CommandTable::row(int row) const
{
    return {cellText(m_table, row, Column::Description),
            isSelectCellChecked(m_table, row, Column::Select),
            cellText(m_table, row, Column::Cmd),
            cellText(m_table, row, Column::Addr),
            cellText(m_table, row, Column::Data),
            cellText(m_table, row, Column::Crc),
            cellText(m_table, row, Column::DataType),
            cellText(m_table, row, Column::OriginalData),
            rowExpectations(m_table, row),
            rowId(m_table, row)};
}

QVector<CommandRow> CommandTable::rows() const
{
    QVector<CommandRow> all;
    for (int row = 0; row < m_table.rowCount(); ++row) {
        all.append(this->row(row));
    }
    return all;
}

int CommandTable::rowWithId(int id) const
{
    for (int row = 0; row < m_table.rowCount(); ++row) {
        if (id != 0 && rowId(m_table, row) == id) {
            return row;
        }
    }
    return -1;
}

void CommandTable::setSelected(int row, bool selected)
{
    putSelectBox(row, selected);
    emit selectChanged(row);
}

QString CommandTable::currentFrameText() const
{
    return frameText(row(m_table.currentRow()));
}

CheckedRow CommandTable::currentRow() const
{
    return checkedRow(m_table.currentRow());
}

CheckedRow CommandTable::checkedRow(int row) const
{
    const CommandRow command = this->row(row);
    return {row + 1, frameText(command), command.description, command.id, command.expectations};
}

QVector<CheckedRow> CommandTable::checkedRows() const
{
    QVector<CheckedRow> checked;
    for (int row = 0; row < m_table.rowCount(); ++row) {
        if (isSelectCellChecked(m_table, row, Column::Select)) {
            checked.append(checkedRow(row));
        }
    }
    return checked;
}

void CommandTable::recomputeCurrentRow()
{
    m_table.blockSignals(true);
    const int row = m_table.currentRow();
    if (row >= 0) {
        setCentredItem(m_table, row, Column::Crc, crcCellText(currentFrameText()));
    }
    m_table.blockSignals(false);
}

void CommandTable::normaliseCurrentAddress()
{
    const int row = m_table.currentRow();
    if (row < 0 || m_table.currentColumn() != Column::Addr) {
        return;
    }
    const QString typed = cellText(m_table, row, Column::Addr);
    const QString normalised = normalisedAddress(typed);
    if (normalised != typed) {
        setCentredItem(m_table, row, Column::Addr, normalised);
    }
}

void CommandTable::goOnFromCurrentCell()
{
    const int row = m_table.currentRow();
    if (m_table.currentColumn() == Column::Data) {
        edit(row + 1, Column::Addr);
        return;
    }
    if (m_table.currentColumn() != Column::Addr) {
        return;
    }
    const QString above = cellText(m_table, row - 1, Column::Addr);
    if (isBlank(cellText(m_table, row, Column::Addr)) && !isBlank(above)) {
        setCentredItem(m_table, row, Column::Addr, nextAddress(above));
    }
    edit(row, Column::Data);
}

void CommandTable::writeData(int row, const QByteArray &bytes)
{
    restoreSignals();
    setLeftItem(m_table, row, Column::Data, formatHexBytes(bytes).trimmed());
}

void CommandTable::takeInEdit()
{
    const QModelIndex cell = m_table.currentIndex();
    auto *delegate = qobject_cast<TextDelegate *>(m_table.itemDelegate(cell));
    auto *editor = qobject_cast<QLineEdit *>(m_table.indexWidget(cell));
    if (delegate != nullptr && editor != nullptr) {
        delegate->takeIn(editor);
    }
}

void CommandTable::takeEdited(int row, const CommandRow &edited)
{
    if (row < 0 || row >= m_table.rowCount()) {
        return;
    }
    setCentredItem(m_table, row, Column::Cmd, onOneLine(edited.cmd));
    setCentredItem(m_table, row, Column::Addr, onOneLine(edited.addr));
    setLeftItem(m_table, row, Column::Data, groupPairsFromRight(edited.data));
    setCentredItem(m_table, row, Column::DataType, edited.dataType);
}

void CommandTable::installDelegates()
{
    auto *addrDelegate = new AddrDelegate(m_window);
    auto *dataDelegate = new DataDelegate(m_window);
    addrDelegate->installEventFilter(addrDelegate);
    dataDelegate->installEventFilter(dataDelegate);
    auto *cellWidgetDelegate = new CellWidgetDelegate(this);
    auto *textDelegate = new TextDelegate(this);
    m_table.setItemDelegate(textDelegate);
    m_table.setItemDelegateForColumn(Column::Select, cellWidgetDelegate);
    m_table.setItemDelegateForColumn(Column::Send, cellWidgetDelegate);
    m_table.setItemDelegateForColumn(Column::Addr, addrDelegate);
    m_table.setItemDelegateForColumn(Column::Data, dataDelegate);
    connect(addrDelegate, &AddrDelegate::AfterCommitData, this, [this, addrDelegate] {
        if (!addrDelegate->leavesUntouched()) {
            emit addressCommitted();
        }
    });
    for (const TextDelegate *delegate : {textDelegate, static_cast<TextDelegate *>(addrDelegate),
                                         static_cast<TextDelegate *>(dataDelegate)}) {
        connect(delegate, &TextDelegate::editorOpens, this, &CommandTable::restoreSignals);
        connect(delegate, &TextDelegate::editorOpens, this, &CommandTable::editorOpened);
        connect(delegate, &TextDelegate::closeEditor, this, &CommandTable::editorClosed);
    }
    connect(addrDelegate, &AddrDelegate::enterdata, this, &CommandTable::enterPressed);
    connect(dataDelegate, &DataDelegate::enterdata, this, &CommandTable::enterPressed);
}

void CommandTable::refuseInsertion()
{
    emit insertionRefused(tr("The command table is full: rows can be inserted up to row %1.")
                              .arg(lastInsertableRow + 1));
}

void CommandTable::insertFilledRow(int row, const CommandRow &content)
{
    m_table.insertRow(row);
    fillRow(row, content);
}

/// A row that has come from elsewhere gets an identity of its own.
void CommandTable::identify(int row, int id)
{
    const QSignalBlocker blocker(m_table);
    setRowId(m_table, row, id != 0 ? id : ++m_lastId);
}

void CommandTable::putSelectBox(int row, bool selected)
{
    const QCheckBox *box = setSelectCell(m_table, row, Column::Select, selected, m_window);
    const QPersistentModelIndex cell = m_table.model()->index(row, Column::Select);
    connect(box, &QCheckBox::toggled, this, [this, cell] { emit selectChanged(cell.row()); });
}

void CommandTable::fillRow(int row, const CommandRow &content)
{
    setCentredItem(m_table, row, Column::Description, content.description);
    identify(row, content.id);
    setRowExpectations(m_table, row, content.expectations);
    putSelectBox(row, content.selected);
    setCentredItem(m_table, row, Column::Cmd, content.cmd);
    setCentredItem(m_table, row, Column::Addr, content.addr);
    setLeftItem(m_table, row, Column::Data, content.data);
    setCentredItem(m_table, row, Column::Crc, content.crc);
    const QPushButton *button = setSendCell(m_table, row, Column::Send, m_sendIcon);
    connect(button, &QPushButton::clicked, this, &CommandTable::sendRequested);
    setCentredItem(m_table, row, Column::DataType, content.dataType);
    setLeftItem(m_table, row, Column::OriginalData, content.originalData);
}

void CommandTable::moveByCopy(int from, int to)
{
    m_table.blockSignals(true);
    const CommandRow content = row(from);
    insertFilledRow(to, content);
    m_table.removeRow(to <= from ? from + 1 : from);
    m_table.blockSignals(false);
}

void CommandTable::edit(int row, int column)
{
    if (QTableWidgetItem *item = m_table.item(row, column)) {
        m_table.setCurrentItem(item);
        m_table.editItem(item);
    }
}

#include "messagelog.h"

#include "fieldcutter.h"
#include "logcelldelegate.h"
#include "logitem.h"
#include "logtable.h"
#include "tableitems.h"
#include "tablelook.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int columnCount = 8;
constexpr int filledColumns = 7;
constexpr int initialRows = 9;
constexpr int rowsAtOncePerFrame = 128;
constexpr int numberColumn = 0;
constexpr int dataColumn = 5;

Qt::Alignment alignmentOf(int column)
{
    return Qt::AlignVCenter | (column == dataColumn ? Qt::AlignLeft : Qt::AlignHCenter);
}

} // namespace

MessageLog::MessageLog(LogTable &table, QObject *parent)
    : QObject(parent)
    , m_table(table)
{
    styleTable(m_table, columnCount, initialRows);
    setColumns(m_table, {{tr("No."), 100},
                         {tr("Header"), 100},
                         {tr("Length"), 75},
                         {tr("CMD"), 50},
                         {tr("Addr"), 90},
                         {tr("Data"), 90, QHeaderView::Stretch, true},
                         {tr("CRC"), 63},
                         {QString(), 63}});
    m_table.setItemDelegate(new LogCellDelegate(this));
    showBlankTable();
    connect(&m_pace, &DisplayPace::due, this, &MessageLog::moveOn);
}

void MessageLog::setHold(std::function<bool()> hold)
{
    m_pace.setHold(std::move(hold));
}

void MessageLog::appendSent(const QString &hexText, bool withCrc)
{
    append(Entry::Kind::Sent, hexText, withCrc);
}

void MessageLog::appendReceived(const QString &hexText, bool withCrc)
{
    append(Entry::Kind::Received, hexText, withCrc);
}

void MessageLog::appendNotice(const QString &text)
{
    append(Entry::Kind::Notice, text, false);
}

void MessageLog::appendEvent(const QString &linkName, const QString &text)
{
    makeRoom();
    append({Entry::Kind::Notice, linkName, text}, Direction::None);
}

void MessageLog::clear()
{
    forgetAll();
    bringIn();
    m_pace.request();
}

QVector<std::array<QString, 7>> MessageLog::rows()
{
    bringIn();
    QVector<std::array<QString, filledColumns>> all(m_count);
    for (int row = 0; row < m_count; ++row) {
        for (int column = 0; column < filledColumns; ++column) {
            all[row][static_cast<size_t>(column)] = cellText(m_table, row, column);
        }
    }
    return all;
}

void MessageLog::bringIn()
{
    if (m_tableIsStale) {
        showBlankTable();
        m_tableIsStale = false;
    }
    if (m_waiting.isEmpty()) {
        return;
    }
    int row = m_count - m_waiting.size();
    if (m_count > m_table.rowCount()) {
        m_table.growTo(m_count);
    }
    for (const Entry &entry : std::as_const(m_waiting)) {
        fillRow(row++, entry);
    }
    m_waiting.clear();
}

void MessageLog::append(Entry::Kind kind, const QString &text, bool withCrc)
{
    makeRoom();
    append({kind, QString::number(m_nextNumber++), text, withCrc},
           kind == Entry::Kind::Sent ? Direction::Sent : Direction::Received);
}

void MessageLog::append(Entry entry, Direction direction)
{
    ++m_count;
    m_directions.append(direction);
    m_waiting.append(std::move(entry));
    if (m_rowsThisFrame < rowsAtOncePerFrame) {
        ++m_rowsThisFrame;
        bringIn();
    }
    m_pace.request();
}

void MessageLog::makeRoom()
{
    if (m_count >= mostRows) {
        forgetAll();
    }
}

void MessageLog::forgetAll()
{
    m_waiting.clear();
    m_directions.clear();
    m_count = 0;
    m_nextNumber = 1;
    m_tableIsStale = true;
}

void MessageLog::moveOn()
{
    m_rowsThisFrame = 0;
    bringIn();
    if (m_count >= initialRows) {
        m_table.showEnd();
    }
    if (std::exchange(m_announcedCount, m_count) != m_count) {
        emit countChanged(m_count);
    }
}

void MessageLog::showBlankTable()
{
    m_table.clearContents();
    m_table.setRowCount(initialRows);
    for (int row = 0; row < initialRows; ++row) {
        for (int column = 0; column < columnCount; ++column) {
            m_table.setItem(row, column,
                            new LogItem(QString(), alignmentOf(column), LogItem::Colour::Plain));
        }
    }
    m_table.scrollToTop();
}

void MessageLog::fillRow(int row, const Entry &entry)
{
    const QStringList texts = textsOf(entry);
    for (int column = 0; column < columnCount; ++column) {
        m_table.setItem(
            row, column,
            new LogItem(texts.value(column), alignmentOf(column), colourOf(entry.kind, column)));
    }
}

LogItem::Colour MessageLog::colourOf(Entry::Kind kind, int column)
{
    const bool coloured =
        kind == Entry::Kind::Received
            ? column < filledColumns
            : kind == Entry::Kind::Notice && (column == numberColumn || column == dataColumn);
    return coloured ? LogItem::Colour::Received : LogItem::Colour::Plain;
}

QStringList MessageLog::textsOf(const Entry &entry)
{
    if (entry.kind == Entry::Kind::Notice) {
        return {entry.label, {}, {}, {}, {}, entry.text, {}};
    }
    const FrameFields fields = entry.kind == Entry::Kind::Sent
                                   ? cutSentFrame(entry.text, entry.withCrc)
                                   : cutReceivedFrame(entry.text, entry.withCrc);
    return {entry.label, fields.header, fields.length, fields.cmd,
            fields.addr, fields.data,   fields.crc};
}

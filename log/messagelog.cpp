#include "messagelog.h"

#include "fieldcutter.h"
#include "plaincelldelegate.h"
#include "tableitems.h"
#include "tablelook.h"

#include <QTableWidget>

#include <algorithm>
#include <utility>

namespace {

constexpr int columnCount = 8;
constexpr int filledColumns = 7;
constexpr int initialRows = 9;
constexpr int fullCount = 1024;
constexpr int displayFrameMs = 16;
constexpr int rowsAtOncePerFrame = 64;
constexpr int dataColumn = 5;

Qt::Alignment alignmentOf(int column)
{
    return Qt::AlignVCenter | (column == dataColumn ? Qt::AlignLeft : Qt::AlignHCenter);
}

} // namespace

MessageLog::MessageLog(QTableWidget &table, QObject *parent)
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
    m_table.setItemDelegate(new PlainCellDelegate(this));
    showBlankTable();
    m_displayFrame.setSingleShot(true);
    m_displayFrame.setInterval(displayFrameMs);
    connect(&m_displayFrame, &QTimer::timeout, this, &MessageLog::onDisplayFrame);
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
    append({Entry::Kind::Notice, linkName, text});
}

void MessageLog::clear()
{
    forgetAll();
    bringIn();
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
    m_table.setRowCount(std::max(initialRows, m_count));
    for (const Entry &entry : std::as_const(m_waiting)) {
        fillRow(row++, entry);
    }
    m_waiting.clear();
    if (m_count >= initialRows) {
        m_table.scrollToBottom();
    }
}

void MessageLog::append(Entry::Kind kind, const QString &text, bool withCrc)
{
    makeRoom();
    append({kind, QString::number(m_nextNumber++), text, withCrc});
}

void MessageLog::append(Entry entry)
{
    ++m_count;
    m_waiting.append(std::move(entry));
    beginDisplayFrame();
    if (m_rowsThisFrame < rowsAtOncePerFrame) {
        ++m_rowsThisFrame;
        bringIn();
    }
}

void MessageLog::makeRoom()
{
    if (m_count > fullCount) {
        forgetAll();
    }
}

void MessageLog::forgetAll()
{
    m_waiting.clear();
    m_count = 0;
    m_nextNumber = 1;
    m_tableIsStale = true;
}

/// A row after a quiet time is painted at once, what follows it at the pace of the display.
void MessageLog::beginDisplayFrame()
{
    if (m_displayFrame.isActive()) {
        m_table.setUpdatesEnabled(false);
    } else {
        m_displayFrame.start();
    }
}

void MessageLog::onDisplayFrame()
{
    m_rowsThisFrame = 0;
    bringIn();
    if (!m_table.updatesEnabled()) {
        m_table.setUpdatesEnabled(true);
        m_displayFrame.start();
    }
}

void MessageLog::showBlankTable()
{
    m_table.clearContents();
    m_table.setRowCount(initialRows);
    for (int row = 0; row < initialRows; ++row) {
        for (int column = 0; column < columnCount; ++column) {
            setCell(row, column, QString(), LogItem::Origin::Sent);
        }
    }
    m_table.scrollToTop();
}

void MessageLog::fillRow(int row, const Entry &entry)
{
    const QStringList texts = textsOf(entry);
    const auto origin =
        entry.kind == Entry::Kind::Sent ? LogItem::Origin::Sent : LogItem::Origin::Received;
    for (int column = 0; column < columnCount; ++column) {
        setCell(row, column, texts.value(column), origin);
    }
}

void MessageLog::setCell(int row, int column, const QString &text, LogItem::Origin origin)
{
    m_table.setItem(row, column, new LogItem(text, alignmentOf(column), origin));
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

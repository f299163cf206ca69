#include "log/messagelog.h"

#include "log/logcelldelegate.h"
#include "log/logtable.h"
#include "log/logtexts.h"
#include "log/recordlog.h"
#include "widgets/tableitems.h"
#include "widgets/tablelook.h"

#include <utility>

namespace {

constexpr int initialRows = 9;
constexpr int rowsAtOncePerFrame = 128;

Qt::AlignmentFlag alignmentOf(int column)
{
    return column == LogColumn::Data ? Qt::AlignLeft : Qt::AlignHCenter;
}

} // namespace

MessageLog::MessageLog(LogTable &table, const RecordLog &records, QObject *parent)
    : QObject(parent)
    , m_cells(new LogCellDelegate(this))
    , m_table(table)
    , m_records(records)
{
    styleTable(m_table, LogColumn::Count, initialRows);
    setColumns(m_table, {{tr("No."), 100},
                         {tr("Header"), 100},
                         {tr("Length"), 75},
                         {tr("CMD"), 50},
                         {tr("Addr"), 90},
                         {tr("Data"), 90, QHeaderView::Stretch, true},
                         {tr("CRC"), 63},
                         {QString(), 63}});
    m_table.setItemDelegate(m_cells);
    showBlankTable();
    connect(&m_records, &RecordLog::appended, this, &MessageLog::followAppended);
    connect(&m_records, &RecordLog::cleared, this, &MessageLog::followCleared);
    connect(&m_records, &RecordLog::startedOver, this, [this] { m_tableIsStale = true; });
    connect(&m_pace, &DisplayPace::due, this, &MessageLog::moveOn);
}

void MessageLog::setHold(std::function<bool()> hold)
{
    m_pace.setHold(std::move(hold));
}

void MessageLog::bringIn()
{
    if (std::exchange(m_tableIsStale, false)) {
        showBlankTable();
    }
    const QVector<LogRecord> &records = m_records.records();
    if (records.size() > m_table.rowCount()) {
        m_table.growTo(records.size());
    }
    while (m_filledRows < records.size()) {
        fillRow(m_filledRows);
        ++m_filledRows;
    }
}

void MessageLog::setShownTime(ShownTime shown)
{
    m_cells->setShownTime(shown);
    m_table.viewport()->update();
}

ShownTime MessageLog::shownTime() const
{
    return m_cells->shownTime();
}

void MessageLog::followAppended()
{
    if (m_rowsThisFrame < rowsAtOncePerFrame) {
        ++m_rowsThisFrame;
        bringIn();
    }
    m_pace.request();
}

void MessageLog::followCleared()
{
    m_tableIsStale = true;
    bringIn();
    m_pace.request();
}

void MessageLog::moveOn()
{
    m_rowsThisFrame = 0;
    bringIn();
    if (m_filledRows >= initialRows) {
        m_table.showEnd();
    }
    if (std::exchange(m_announcedCount, m_filledRows) != m_filledRows) {
        emit countChanged(m_filledRows);
    }
}

void MessageLog::showBlankTable()
{
    m_filledRows = 0;
    m_table.clearContents();
    m_table.setRowCount(initialRows);
    for (int row = 0; row < initialRows; ++row) {
        for (int column = 0; column < LogColumn::Count; ++column) {
            m_table.setItem(row, column,
                            m_items.make({}, alignmentOf(column), LogItems::Colour::Plain));
        }
    }
    m_table.scrollToTop();
}

void MessageLog::fillRow(int row)
{
    const LogRecord &record = m_records.records().at(row);
    const LogTexts texts = textsOf(record);
    const auto put = [&](int column, const QString &text) {
        m_table.setItem(row, column,
                        m_items.make(text, alignmentOf(column), colourOf(record.kind, column)));
    };
    for (int column = LogColumn::Number; column < LogColumn::Rest; ++column) {
        put(column, texts[static_cast<size_t>(column)]);
    }
    m_table.setItem(row, LogColumn::Rest, timeItem(row));
}

/// A cell without a text, which carries the row's time.
QTableWidgetItem *MessageLog::timeItem(int row) const
{
    QTableWidgetItem *item =
        m_items.make({}, alignmentOf(LogColumn::Rest), LogItems::Colour::Plain);
    item->setData(LogCellDelegate::timeRole,
                  QVariant::fromValue(rowTimeOf(m_records.records(), row)));
    return item;
}

LogItems::Colour MessageLog::colourOf(LogRecord::Kind kind, int column)
{
    const bool coloured = kind == LogRecord::Kind::Received ||
                          (kind != LogRecord::Kind::Sent &&
                           (column == LogColumn::Number || column == LogColumn::Data));
    return coloured ? LogItems::Colour::Received : LogItems::Colour::Plain;
}

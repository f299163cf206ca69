#include "log/messagelog.h"

#include "log/localtime.h"
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
    connect(&m_records, &RecordLog::startedOver, this, [this] {
        m_tableIsStale = true;
        m_beganAnew = true;
    });
    connect(&m_pace, &DisplayPace::due, this, &MessageLog::moveOn);
    connect(&m_table, &LogTable::scrolledByHand, this, &MessageLog::follow);
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
    const int first = m_filledRows;
    const QVector<LogRecord> &records = m_records.records();
    if (records.size() > m_table.rowCount()) {
        m_table.growTo(records.size());
    }
    while (m_filledRows < records.size()) {
        fillRow(m_filledRows);
        ++m_filledRows;
    }
    if (isFiltered() && first < m_filledRows) {
        showMatching(first);
    }
}

void MessageLog::setFollowing(bool isFollowing)
{
    follow(isFollowing);
    moveView();
}

void MessageLog::setFilter(const LogFilter &filter)
{
    bringIn();
    const bool keepsRow = m_table.isSelectedInView();
    m_filter = filter;
    showMatching(0);
    m_table.doItemsLayout();
    if (keepsRow && !m_table.isRowHidden(m_table.currentRow())) {
        m_table.scrollTo(m_table.currentIndex());
        follow(m_table.isAtEnd());
    } else {
        moveView();
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
    m_beganAnew = false;
    bringIn();
    m_pace.request();
}

void MessageLog::moveOn()
{
    m_rowsThisFrame = 0;
    bringIn();
    moveView();
    if (std::exchange(m_announcedCount, m_filledRows) != m_filledRows) {
        emit countChanged(m_filledRows);
    }
}

void MessageLog::moveView()
{
    if (!m_isFollowing) {
        m_table.stay();
    } else if (m_filledRows >= initialRows) {
        m_table.showEnd();
    }
}

void MessageLog::follow(bool isFollowing)
{
    if (std::exchange(m_isFollowing, isFollowing) != isFollowing) {
        emit followingChanged(isFollowing);
    }
}

void MessageLog::showBlankTable()
{
    m_filledRows = 0;
    m_table.clearContents();
    m_table.shrinkTo(initialRows);
    for (int row = 0; row < initialRows; ++row) {
        for (int column = 0; column < LogColumn::Count; ++column) {
            m_table.setItem(row, column,
                            m_items.make({}, alignmentOf(column), LogItems::Colour::Plain));
        }
    }
    if (isFiltered()) {
        showMatching(0);
    }
}

void MessageLog::showMatching(int first)
{
    const QVector<LogRecord> &records = m_records.records();
    m_matching = first == 0 ? 0 : m_matching;
    QVector<bool> shown(m_table.rowCount() - first, !isFiltered());
    for (int row = first; isFiltered() && row < m_filledRows; ++row) {
        const bool matches = m_filter.matches(records.at(row));
        shown[row - first] = matches;
        m_matching += matches ? 1 : 0;
    }
    m_table.showRows(first, shown);
}

void MessageLog::fillRow(int row)
{
    const LogRecord &record = m_records.records().at(row);
    const LogTexts texts = shownTextsOf(record);
    const auto put = [&](int column, const QString &text) {
        m_table.setItem(row, column,
                        m_items.make(text, alignmentOf(column), colourOf(record.kind, column)));
    };
    for (int column = LogColumn::Number; column < LogColumn::Rest; ++column) {
        put(column, texts[static_cast<size_t>(column)]);
    }
    m_table.setItem(row, LogColumn::Rest, timeItem(row));
    if (!record.fault.isEmpty()) {
        m_table.item(row, LogColumn::Number)->setData(LogCellDelegate::faultRole, record.fault);
    }
    if (row == 0 && m_beganAnew) {
        tellBeginning();
    }
}

/// What the log emptied by itself is not missed without a word.
void MessageLog::tellBeginning()
{
    const qint64 time = m_records.records().first().utcUs;
    const QString file = m_recordingFile ? m_recordingFile() : QString();
    QStringList lines{tr("The log was full and began anew at %1; the %2 rows before are gone.")
                          .arg(localClockText(time).section(QLatin1Char('.'), 0, 0))
                          .arg(RecordLog::mostRecords)};
    if (!file.isEmpty()) {
        lines += tr("A recording goes on in %1.").arg(file);
    }
    m_table.item(0, LogColumn::Number)
        ->setData(LogCellDelegate::remarkRole, lines.join(QLatin1Char('\n')));
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

#pragma once

#include "log/displaypace.h"
#include "log/logfilter.h"
#include "log/logitems.h"
#include "log/logrecord.h"
#include "log/timecolumn.h"

#include <QObject>

#include <functional>
#include <utility>

class LogCellDelegate;
class LogTable;
class RecordLog;

/// The message log as a table: a row for each record.
///
/// The first rows of each display frame come into the table at once. What a flood brings beyond
/// them waits for the next display frame, so that rows which the log would empty again before
/// anybody could see them are never built; and the table moves on once in a display frame, however
/// many rows it brought.
class MessageLog : public QObject
{
    Q_OBJECT

public:
    /// Sets the table up. Table and records must outlive this.
    MessageLog(LogTable &table, const RecordLog &records, QObject *parent = nullptr);

    /// What is asked before the table moves on. While it says true, the table waits, but no longer
    /// than 50 ms.
    void setHold(std::function<bool()> hold);

    /// What is asked for the file of the recording that runs, when a log that was full begins anew:
    /// the first row's tip names it. Empty where none runs.
    void setRecordingFile(std::function<QString()> file) { m_recordingFile = std::move(file); }

    /// Brings rows that wait for the display into the table.
    void bringIn();

    /// What the last column shows of the rows' times, from now on; at first the time since the row
    /// before. Its cells' texts stay empty.
    void setShownTime(ShownTime shown);
    ShownTime shownTime() const;

    /// Whether new rows are scrolled to, as at first. Who scrolls away from the end by hand isn't
    /// followed until he is back there.
    bool isFollowing() const { return m_isFollowing; }
    void setFollowing(bool isFollowing);

    /// Hides the rows that don't match, those that are yet to come, too, and those without a
    /// record; an empty filter shows all again. A selected row that is in view stays there.
    void setFilter(const LogFilter &filter);
    bool isFiltered() const { return !m_filter.isEmpty(); }

    /// How many records the table has, and how many of them match.
    int count() const { return m_filledRows; }
    int matching() const { return isFiltered() ? m_matching : m_filledRows; }

signals:
    /// The number of filled rows has changed; once in a display frame at most.
    void countChanged(int used);

    /// New rows are scrolled to from now on, or no longer.
    void followingChanged(bool isFollowing);

private:
    void followAppended();
    void followCleared();
    void moveOn();
    void follow(bool isFollowing);
    void moveView();
    void showBlankTable();
    void fillRow(int row);
    QTableWidgetItem *timeItem(int row) const;
    void tellBeginning();
    void showMatching(int first);
    static LogItems::Colour colourOf(LogRecord::Kind kind, int column);

    LogItems m_items;
    LogCellDelegate *m_cells;
    LogTable &m_table;
    const RecordLog &m_records;
    /// Rows that show a record; of records that are gone, while the table is stale.
    int m_filledRows = 0;
    bool m_tableIsStale = false;
    bool m_beganAnew = false;
    std::function<QString()> m_recordingFile;
    bool m_isFollowing = true;
    LogFilter m_filter;
    int m_matching = 0;
    int m_rowsThisFrame = 0;
    int m_announcedCount = 0;
    DisplayPace m_pace;
};

#include "figures.h"
#include "frames/timeunits.h"
#include "log/logtable.h"
#include "log/messagelog.h"
#include "log/recordlog.h"

#include <QApplication>
#include <QTableWidget>

// What a row of the message log costs, in the ways rows come in.

namespace {

constexpr int floodRows = 60000;

/// A log in a table of the size it has in the window.
class ShownLog
{
public:
    ShownLog()
        : m_log(m_table, m_records)
    {
        m_table.resize(900, 350);
        m_table.show();
        QCoreApplication::processEvents();
    }

    /// Microseconds a row, for rows of which every `rowsAtATime` come in one turn of the event
    /// loop.
    double cost(int rows, int rowsAtATime)
    {
        const double seconds = medianSeconds([&] {
            for (int row = 0; row < rows; ++row) {
                m_records.appendReceived(m_frame, true, m_time);
                if (row % rowsAtATime == rowsAtATime - 1) {
                    m_log.bringIn();
                    QCoreApplication::processEvents();
                }
            }
            m_log.bringIn();
            QCoreApplication::processEvents();
        });
        return seconds * usPerSecond / rows;
    }

    /// Microseconds for the rows of a full log, brought in at once and not yet painted.
    double costOfFullTable()
    {
        const double seconds = medianSeconds([&] {
            m_records.clear();
            for (int row = 0; row < RecordLog::mostRecords; ++row) {
                m_records.appendReceived(m_frame, true, m_time);
            }
            m_log.bringIn();
        });
        return seconds * usPerSecond / RecordLog::mostRecords;
    }

    double milliSecondsToPaint()
    {
        m_table.setUpdatesEnabled(true);
        return msPerSecond * medianSeconds([this] { m_table.viewport()->repaint(); }, 51);
    }

    /// For a full log, of which every row is looked at, and shown or hidden by turns.
    double milliSecondsToFind(const QString &typed)
    {
        m_records.clear();
        for (int row = 0; row < RecordLog::mostRecords; ++row) {
            m_records.appendReceived(m_frame, true, m_time);
        }
        m_log.bringIn();
        bool isTyped = false;
        const double seconds = medianSeconds(
            [&] {
                isTyped = !isTyped;
                m_log.setFilter(LogFilter(isTyped ? typed : QStringLiteral("nowhere")));
                QCoreApplication::processEvents();
            },
            21);
        m_log.setFilter({});
        return msPerSecond * seconds;
    }

    double milliSecondsToClear()
    {
        return msPerSecond * medianSeconds([this] { m_records.clear(); });
    }

private:
    LogTable m_table;
    RecordLog m_records;
    MessageLog m_log;
    const QByteArray m_frame = QByteArray::fromHex("5AA50803100000000000770102");
    const ArrivalTime m_time = ArrivalTime::now();
};

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    ShownLog log;
    printHeading("log: a row of 13 bytes");
    printFigure("one row for each turn of the event loop", log.cost(RecordLog::mostRecords, 1),
                "us/row");
    printFigure("50 rows for each turn", log.cost(RecordLog::mostRecords, 50), "us/row");
    printFigure("500 rows for each turn", log.cost(2 * RecordLog::mostRecords, 500), "us/row");
    printFigure("a full log at once, not painted", log.costOfFullTable(), "us/row");
    printFigure("a flood of 60000 in one turn", log.cost(floodRows, floodRows), "us/row");
    printFigure("painting what is visible", log.milliSecondsToPaint(), "ms");
    const QString displayFrame = QStringLiteral("16, a display frame");
    printFigure("finding bytes in a full log", log.milliSecondsToFind("00 77"), "ms", displayFrame);
    printFigure("finding a text in a full log", log.milliSecondsToFind("rx 1000"), "ms",
                displayFrame);
    printFigure("all rows of it again", log.milliSecondsToFind({}), "ms", displayFrame);
    printFigure("emptying a full log", log.milliSecondsToClear(), "ms");
    return 0;
}

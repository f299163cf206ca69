#include "childprocess.h"
#include "figures.h"
#include "framepatience.h"
#include "frames/timeunits.h"
#include "log/receiver.h"
#include "log/recordlog.h"
#include "widgets/tableitems.h"
#include "windowdriver.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <random>

// A flood through the real window: another process pushes frames into a pseudo-terminal as fast as
// it takes them, in random chunks. Fails where a frame is lost or out of order.

namespace {

constexpr int frames = 60000;
constexpr int longestChunk = 4000;

QByteArray numberedFrame(int number)
{
    QByteArray frame = QByteArray::fromHex("5AA508031000");
    for (const int shift : {24, 16, 8, 0}) {
        frame.append(static_cast<char>(number >> shift & 0xFF));
    }
    return frame.append('\x77');
}

QString hexText(int number)
{
    return QString::fromLatin1(numberedFrame(number).toHex(' ').toUpper()) + QLatin1Char(' ');
}

QByteArray pushAll(const TestPort &port)
{
    QByteArray stream;
    for (int number = 0; number < frames; ++number) {
        stream.append(numberedFrame(number));
    }
    std::minstd_rand random(1);
    std::uniform_int_distribution<int> chunkSize(1, longestChunk);
    int at = 0;
    while (at < stream.size()) {
        const QByteArray chunk = stream.mid(at, chunkSize(random));
        port.send(chunk);
        at += chunk.size();
    }
    return {};
}

/// The gaps between the turns of the event loop, seen by a timer that is due each millisecond.
class Heartbeat
{
public:
    Heartbeat()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            m_longestNs = std::max(m_longestNs, m_last.nsecsElapsed());
            m_last.start();
        });
        m_last.start();
        m_timer.start(1);
    }

    double longestMs() const { return static_cast<double>(m_longestNs) / nsPerMs; }

private:
    QTimer m_timer;
    QElapsedTimer m_last;
    qint64 m_longestNs = 0;
};

/// What went wrong with the frames on their way.
struct ReceivedTally
{
    int received = 0;
    int stray = 0;
    int outOfOrder = 0;
    QElapsedTimer sinceLast;

    explicit ReceivedTally(const Receiver &receiver)
    {
        QObject::connect(&receiver, &Receiver::frameReceived, [this](const QByteArray &frame) {
            outOfOrder += frame != numberedFrame(received++) ? 1 : 0;
            sinceLast.start();
        });
        QObject::connect(&receiver, &Receiver::strayReceived, [this] { ++stray; });
        sinceLast.start();
    }
};

/// Rows of the full log's last round that do not show what they have to.
int wrongRows(const QTableWidget &table)
{
    const int first = frames / RecordLog::mostRecords * RecordLog::mostRecords;
    if (table.rowCount() != frames - first) {
        return frames - first;
    }
    int wrong = 0;
    for (int row = 0; row < frames - first; ++row) {
        QString shown;
        for (int column = 1; column <= 6; ++column) {
            shown += cellText(table, row, column);
        }
        const bool right = cellText(table, row, 0) == QString::number(row + 1) &&
                           shown.remove(' ') == hexText(first + row).remove(' ');
        wrong += right ? 0 : 1;
    }
    return wrong;
}

bool isComplete(const ReceivedTally &tally, const QTableWidget &table)
{
    return tally.received == frames && wrongRows(table) == 0;
}

} // namespace

int main(int argc, char *argv[])
{
    const TestPort port;
    ChildProcess writer([&port] { return pushAll(port); });
    const QApplication application(argc, argv);
    WindowDriver window;
    window.open(port);
    QCoreApplication::processEvents();
    ReceivedTally tally(*window.window().findChild<Receiver *>());
    const Heartbeat heartbeat;
    const Usage before = Usage::now();
    QElapsedTimer timer;
    timer.start();
    writer.start();
    while (!isComplete(tally, *window.messages()) && tally.sinceLast.elapsed() < framePatienceMs) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    const double seconds = secondsSince(timer);
    const Usage after = Usage::now();

    printHeading(QString("receive: %1 frames of 11 bytes, in random chunks").arg(frames));
    printFigure("frames", frames / seconds, "1/s", ">= 100000 (wire at 1,382,400 baud: 12567)");
    printFigure("the whole stream, until its last row is in", seconds, "s", "< 0.6");
    printFigure("processor time", after.processorSeconds - before.processorSeconds, "s", "0.34");
    printFigure("longest stall of the event loop", heartbeat.longestMs(), "ms", "< 50");
    printFigure("resident memory", after.residentMiB, "MiB");
    printFigure("peak memory", after.peakMiB, "MiB");
    const int wrong = wrongRows(*window.messages());
    if (tally.received != frames || tally.outOfOrder + tally.stray + wrong > 0) {
        QTextStream(stdout) << "  LOST OR OUT OF ORDER: " << tally.received << " received, "
                            << tally.outOfOrder << " out of order, " << tally.stray << " stray, "
                            << wrong << " wrong rows\n";
        return 1;
    }
    QTextStream(stdout) << "  every frame received once, in order, none lost\n";
    return 0;
}

#include "log/messagelog.h"
#include "windowdriver.h"

#include <QHeaderView>
#include <QPaintEvent>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

class TestSteadyLog : public QObject
{
    Q_OBJECT

private slots:
    void rowsThatAreInStayOnTheScreen_data();
    void rowsThatAreInStayOnTheScreen();
    void aLoopAtWorkStaysOnTheScreen_data();
    void aLoopAtWorkStaysOnTheScreen();
    void aNewRowIsAllThatIsPainted();
    void whatWasMovedLooksAsPaintedAnew_data();
    void whatWasMovedLooksAsPaintedAnew();
};

namespace {

constexpr int logRowHeight = 36;
const QByteArray steadyFrame = QByteArray::fromHex("5AA5080310000000000077");

/// What the screen shows of the log, as it was painted: nothing is painted for the picture.
QImage shownLog(const WindowDriver &window)
{
    const QTableWidget &table = *window.messages();
    const QWidget &viewport = *table.viewport();
    const QPoint corner = viewport.mapTo(table.window(), QPoint());
    return table.screen()
        ->grabWindow(table.window()->winId(), corner.x(), corner.y(), viewport.width(),
                     viewport.height())
        .toImage();
}

bool hasText(const QImage &picture, const QRect &place)
{
    constexpr int darkest = 160;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            if (qRed(picture.pixel(x, y)) < darkest) {
                return true;
            }
        }
    }
    return false;
}

/// Rows in full view whose number can't be seen.
int blankRowsOf(const WindowDriver &window)
{
    const QImage picture = shownLog(window);
    const auto dots = [&picture](int pixels) {
        return qRound(pixels * picture.devicePixelRatio());
    };
    const int width = dots(window.messages()->columnWidth(0));
    const int height = dots(logRowHeight);
    int blank = 0;
    for (int top = 0; top + height <= picture.height(); top += height) {
        blank += hasText(picture, {0, top, width, height}) ? 0 : 1;
    }
    return blank;
}

/// Looks at the log in each turn of the event loop, until it holds that many rows.
///
/// Returns how often some row was not to be seen.
int flashesUntil(WindowDriver &window, int rows)
{
    constexpr int patienceMs = 20000;
    const RecordLog &log = window.records();
    QElapsedTimer timer;
    timer.start();
    int flashes = 0;
    while (log.count() < rows && timer.elapsed() < patienceMs) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        flashes += blankRowsOf(window) > 0 ? 1 : 0;
    }
    return log.count() >= rows ? flashes : -1;
}

/// What is painted of a widget, and how often.
class PaintedRegion : public QObject
{
public:
    explicit PaintedRegion(QWidget &widget) { widget.installEventFilter(this); }

    int paints() const { return m_paints; }
    QRegion region() const { return m_region; }

    bool eventFilter(QObject * /*object*/, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            ++m_paints;
            m_region += static_cast<QPaintEvent *>(event)->region();
        }
        return false;
    }

private:
    int m_paints = 0;
    QRegion m_region;
};

/// Appends a row and waits until it is painted.
void appendAndSee(WindowDriver &window)
{
    QSignalSpy movedOn(window.window().findChild<MessageLog *>(), &MessageLog::countChanged);
    window.records().appendReceived(steadyFrame, false);
    QVERIFY(!movedOn.isEmpty() || movedOn.wait());
    QCoreApplication::processEvents();
}

/// Fills what is in view of the log.
void fillView(WindowDriver &window)
{
    constexpr int more = 3;
    // On a small screen the log would be partly out of view.
    window.window().resize(1120, 760);
    QCoreApplication::processEvents();
    RecordLog &log = window.records();
    const int rows = window.messages()->viewport()->height() / logRowHeight + more;
    for (int row = 0; row < rows; ++row) {
        log.appendReceived(steadyFrame, false);
    }
    QTRY_COMPARE(blankRowsOf(window), 0);
    appendAndSee(window);
}

} // namespace

void TestSteadyLog::rowsThatAreInStayOnTheScreen_data()
{
    QTest::addColumn<int>("everyMs");
    QTest::addColumn<int>("rowsAtOnce");

    QTest::newRow("a row at each turn") << 0 << 1;
    QTest::newRow("a flood") << 0 << 100;
    QTest::newRow("every 2 ms") << 2 << 1;
    QTest::newRow("every 5 ms") << 5 << 3;
    QTest::newRow("every 10 ms") << 10 << 1;
    QTest::newRow("every 25 ms") << 25 << 1;
}

void TestSteadyLog::rowsThatAreInStayOnTheScreen()
{
    QFETCH(int, everyMs);
    QFETCH(int, rowsAtOnce);

    WindowDriver window;
    QVERIFY(QTest::qWaitForWindowExposed(&window.window()));
    fillView(window);
    RecordLog &log = window.records();
    QTimer source;
    source.setTimerType(Qt::PreciseTimer);
    connect(&source, &QTimer::timeout, [&] {
        for (int row = 0; row < rowsAtOnce; ++row) {
            log.appendReceived(steadyFrame, false);
        }
    });
    source.start(everyMs);
    constexpr int announcements = 40;
    QCOMPARE(flashesUntil(window, std::min(900, log.count() + announcements * rowsAtOnce)), 0);
}

void TestSteadyLog::aLoopAtWorkStaysOnTheScreen_data()
{
    QTest::addColumn<QString>("interval");
    QTest::addColumn<QString>("cycleDelay");

    QTest::newRow("fast passes") << "0"
                                 << "10";
    QTest::newRow("row by row") << "10"
                                << "0";
}

void TestSteadyLog::aLoopAtWorkStaysOnTheScreen()
{
    QFETCH(QString, interval);
    QFETCH(QString, cycleDelay);

    const TestPort port;
    WindowDriver window;
    QVERIFY(QTest::qWaitForWindowExposed(&window.window()));
    window.open(port);
    for (const int row : {0, 1}) {
        window.setRow(row, "03", "1000", "0001");
        window.checkRow(row);
    }
    fillView(window);
    window.edit("lineEdit_StepValue")->setText(interval);
    window.edit("lineEdit_CycleTime")->setText(cycleDelay);
    window.click("pushButton_Start_Loop");
    constexpr int frames = 80;
    const int before = window.records().count();
    QCOMPARE(flashesUntil(window, before + frames), 0);
}

void TestSteadyLog::aNewRowIsAllThatIsPainted()
{
    constexpr int rows = 20;
    constexpr int untilTheHandleIsAtItsLeast = 60;
    WindowDriver window;
    QVERIFY(QTest::qWaitForWindowExposed(&window.window()));
    fillView(window);
    RecordLog &log = window.records();
    for (int row = 0; row < untilTheHandleIsAtItsLeast; ++row) {
        log.appendReceived(steadyFrame, false);
    }
    QTest::qWait(50);
    appendAndSee(window);
    const PaintedRegion cells(*window.messages()->viewport());
    const PaintedRegion bar(*window.messages()->verticalScrollBar());
    const PaintedRegion header(*window.messages()->horizontalHeader()->viewport());
    for (int row = 1; row <= rows; ++row) {
        appendAndSee(window);
        QCOMPARE(cells.paints(), row);
    }
    QVERIFY2(cells.region().boundingRect().height() <= 2 * logRowHeight,
             qPrintable(QString::number(cells.region().boundingRect().height())));
    QCOMPARE(header.paints(), 0);
    QCOMPARE(bar.paints(), 0);
}

void TestSteadyLog::whatWasMovedLooksAsPaintedAnew_data()
{
    QTest::addColumn<QString>("sought");

    QTest::newRow("all rows") << QString();
    QTest::newRow("rows that were found") << "rx";
}

void TestSteadyLog::whatWasMovedLooksAsPaintedAnew()
{
    QFETCH(QString, sought);

    constexpr int more = 7;
    WindowDriver window;
    QVERIFY(QTest::qWaitForWindowExposed(&window.window()));
    fillView(window);
    RecordLog &log = window.records();
    window.messages()->selectRow(log.count() - 2);
    window.window().findChild<MessageLog *>()->setFilter(LogFilter(sought));
    for (int row = 0; row < more; ++row) {
        log.appendSent(steadyFrame, false);
        appendAndSee(window);
    }
    const QImage moved = shownLog(window);
    QWidget &viewport = *window.messages()->viewport();
    const PaintedRegion painted(viewport);
    viewport.update();
    QTRY_COMPARE(painted.region().boundingRect(), viewport.visibleRegion().boundingRect());
    QCOMPARE(moved, shownLog(window));
}

QTEST_MAIN(TestSteadyLog)

#include "tst_steadylog.moc"

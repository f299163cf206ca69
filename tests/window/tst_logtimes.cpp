#include "app/messagepanel.h"
#include "frames/timeunits.h"
#include "hexbytes.h"
#include "links/serial/seriallink.h"
#include "log/logcolumns.h"
#include "log/recordlog.h"
#include "seencells.h"
#include "testfiles.h"
#include "windowdriver.h"
#include "windowfile.h"

#include <QFile>
#include <QRegularExpression>
#include <QtTest>

class TestLogTimes : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanupTestCase() { init(); }

    void theTimeIsPaintedAndNoText_data();
    void theTimeIsPaintedAndNoText();
    void theTimeFitsItsColumn_data();
    void theTimeFitsItsColumn();
    void theTipTellsTheTimeInFull();
    void aFrameInPiecesTellsItsBeginning();
    void theChoiceIsRemembered_data();
    void theChoiceIsRemembered();
};

namespace {

const QByteArray timedFrame = QByteArray::fromHex("5AA503030001");

MessagePanel &panelOf(WindowDriver &window)
{
    return *window.window().findChild<MessagePanel *>();
}

/// A window with two rows, the second one so many ns after the first.
class TimedWindow : public WindowDriver
{
public:
    explicit TimedWindow(qint64 sinceNs)
    {
        window().resize(1024, 700);
        records().appendSent(timedFrame, false, ArrivalTime{timeUs, 0});
        records().appendReceived(timedFrame, false,
                                 ArrivalTime{timeUs + sinceNs / nsPerUs, sinceNs});
        QCoreApplication::processEvents();
    }

    QImage time(int row) const { return pictureOf(*messages(), row, LogColumn::Rest); }

private:
    static constexpr qint64 timeUs = 1795352607123456;
};

} // namespace

void TestLogTimes::init()
{
    QFile::remove(windowFile());
}

void TestLogTimes::theTimeIsPaintedAndNoText_data()
{
    QTest::addColumn<int>("shown");
    QTest::addColumn<bool>("inTheFirstRow");
    QTest::addColumn<bool>("inTheSecondRow");

    QTest::newRow("since") << int(ShownTime::SinceRowBefore) << false << true;
    QTest::newRow("of the day") << int(ShownTime::OfDay) << true << true;
    QTest::newRow("nothing") << int(ShownTime::Nothing) << false << false;
}

void TestLogTimes::theTimeIsPaintedAndNoText()
{
    QFETCH(int, shown);
    QFETCH(bool, inTheFirstRow);
    QFETCH(bool, inTheSecondRow);
    TimedWindow window(12 * nsPerMs);
    panelOf(window).setShownTime(ShownTime(shown));
    const QImage blank = window.time(2);
    QCOMPARE(window.time(0) != blank, inTheFirstRow);
    QCOMPARE(window.time(1) != blank, inTheSecondRow);
    for (const int row : {0, 1}) {
        QCOMPARE(window.messages()->item(row, LogColumn::Rest)->text(), QString());
    }
}

void TestLogTimes::theTimeFitsItsColumn_data()
{
    QTest::addColumn<int>("shown");
    QTest::addColumn<qint64>("sinceNs");

    QTest::newRow("us") << int(ShownTime::SinceRowBefore) << qint64(888888);
    QTest::newRow("ms") << int(ShownTime::SinceRowBefore) << 88888 * nsPerUs;
    QTest::newRow("before") << int(ShownTime::SinceRowBefore) << -88888 * nsPerUs;
    QTest::newRow("minutes") << int(ShownTime::SinceRowBefore)
                             << 48 * secondsPerMinute * nsPerSecond;
    QTest::newRow("of the day") << int(ShownTime::OfDay) << nsPerMs;
}

/// A text that is cut off, or too large, has ink at the edge of its cell.
void TestLogTimes::theTimeFitsItsColumn()
{
    QFETCH(int, shown);
    QFETCH(qint64, sinceNs);
    TimedWindow window(sinceNs);
    panelOf(window).setShownTime(ShownTime(shown));
    const QImage blank = window.time(2);
    const QImage time = window.time(1);
    QVERIFY(time != blank);
    const QVector<QRect> edges{QRect(0, 0, time.width(), 1), QRect(0, 0, 1, time.height()),
                               QRect(time.width() - 1, 0, 1, time.height())};
    for (const QRect &edge : edges) {
        QCOMPARE(time.copy(edge), blank.copy(edge));
    }
}

void TestLogTimes::theTipTellsTheTimeInFull()
{
    const TimedWindow window(12 * nsPerMs);
    const QRegularExpression first(R"(^\d{4}-\d\d-\d\d \d\d:\d\d:27\.123456 [+-]\d\d:\d\d$)");
    const QString tip = tipOf(*window.messages(), 0, LogColumn::Rest);
    QVERIFY2(first.match(tip).hasMatch(), qPrintable(tip));
    const QStringList lines = tipOf(*window.messages(), 1, LogColumn::Rest).split('\n');
    QCOMPARE(lines.size(), 2);
    QVERIFY2(lines.first().contains(":27.135456 "), qPrintable(lines.first()));
    QCOMPARE(lines.last(), QString("12.000 ms after the row before"));
    // A tip that is to go goes a moment later.
    tipOf(*window.messages(), 2, LogColumn::Rest);
    QTRY_VERIFY(!QToolTip::isVisible());
}

void TestLogTimes::aFrameInPiecesTellsItsBeginning()
{
    WindowDriver window;
    window.window().resize(1024, 700);
    const TestPort port;
    window.open(port);
    port.send(timedFrame);
    QTRY_COMPARE(window.messageCount(), 1);
    QVERIFY(!tipOf(*window.messages(), 0, LogColumn::Rest).contains("First byte"));
    const QSignalSpy arrivals(window.window().findChild<SerialLink *>(), &Link::arrived);
    port.send(hex("5AA503"));
    QTRY_COMPARE(arrivals.count(), 1);
    port.send(hex("030001"));
    QTRY_COMPARE(window.messageCount(), 2);
    const LogRecord &record = window.records().records().at(1);
    QVERIFY(record.begun.monotonicNs < record.monotonicNs);
    QVERIFY(record.begun.utcUs <= record.utcUs);
    const QString tip = tipOf(*window.messages(), 1, LogColumn::Rest);
    QVERIFY2(tip.contains("First byte at "), qPrintable(tip));
}

void TestLogTimes::theChoiceIsRemembered_data()
{
    QTest::addColumn<int>("shown");

    for (const ShownTime shown :
         {ShownTime::SinceRowBefore, ShownTime::OfDay, ShownTime::Nothing}) {
        QTest::addRow("%d", int(shown)) << int(shown);
    }
}

void TestLogTimes::theChoiceIsRemembered()
{
    QFETCH(int, shown);
    {
        WindowDriver window;
        QCOMPARE(panelOf(window).shownTime(), ShownTime::SinceRowBefore);
        panelOf(window).setShownTime(ShownTime(shown));
        QVERIFY(window.window().close());
    }
    WindowDriver window;
    QCOMPARE(panelOf(window).shownTime(), ShownTime(shown));
    QCOMPARE(textIn(windowFile()).contains("time="), ShownTime(shown) != ShownTime::SinceRowBefore);
}

QTEST_MAIN(TestLogTimes)
#include "tst_logtimes.moc"

#include "fakeframesettings.h"
#include "fakelink.h"
#include "sender.h"
#include "sendloop.h"

#include <QEventLoop>
#include <QSignalSpy>
#include <QThread>
#include <QtTest>

class TestSendLoop : public QObject
{
    Q_OBJECT

private slots:
    void nothingRunsByItself();
    void fastModeSendsBlocks();
    void fastModeWithoutPauseEndsAtOnce();
    void intervalModeSendsRowByRow();
    void manyShortIntervalsAreWhole();
    void intervalModeAddsPauses();
    void textsWithoutPauseAreSkipped_data();
    void textsWithoutPauseAreSkipped();
    void pausesAddUp_data();
    void pausesAddUp();
    void intervalCountsFromTheHandOver();
    void intervalFollowsARowWithNothingToSend();
    void passesFollowOneAnother();
    void passIsNotEnteredTwice();
    void sentCountOfAPass();

    void stopEndsAWait_data();
    void stopEndsAWait();
    void stopBetweenBlocks();
    void stopDuringAMessage();
    void stopInsideABlockingMessage();
    void startAgainAfterAStop();
    void startReplacesTheRunningPlan();
    void restartDuringAMessageKeepsItsPauses();
    void restartDuringABlockKeepsItsIntervals();

    void emptyPlanFindsNothing_data();
    void emptyPlanFindsNothing();
    void rowsWithoutFramesAreAPass();
    void closedLinkIsPassedOver_data();
    void closedLinkIsPassedOver();
};

namespace {

constexpr qint64 nsPerMs = 1000000;

/// A loop on a fake link; frames are their texts alone.
class Bench
{
public:
    Bench()
    {
        settings.layout.withStartBytes = false;
        settings.layout.withLength = false;
        sender.setLink(&link);
        QObject::connect(&loop, &SendLoop::passEnded, &loop,
                         [this] { endedAtNs = link.clock.nsecsElapsed(); });
    }

    void start(const QStringList &texts, int intervalMs)
    {
        QVector<CheckedRow> rows;
        for (const QString &text : texts) {
            rows.append({rows.size() + 1, text});
        }
        loop.start(sender.planLoop(rows), intervalMs);
    }

    void run(const QStringList &texts, int intervalMs)
    {
        start(texts, intervalMs);
        loop.runPass();
    }

    /// What was written, block by block, in hex.
    QString written() const
    {
        QStringList texts;
        for (const QByteArray &block : link.blocks) {
            texts.append(QString::fromLatin1(block.toHex()));
        }
        return texts.join(QLatin1Char(' '));
    }

    /// The ns between a block and the one before it.
    qint64 gapBefore(int block) const
    {
        return link.writtenAtNs.at(block) - link.writtenAtNs.at(block - 1);
    }

    FakeFrameSettings settings;
    FakeLink link;
    Sender sender{settings};
    SendLoop loop{sender};
    QSignalSpy passEnded{&loop, &SendLoop::passEnded};
    QSignalSpy foundNothing{&loop, &SendLoop::foundNothing};
    QSignalSpy messages{&sender, &Sender::message};
    qint64 endedAtNs = 0;

    Q_DISABLE_COPY(Bench)
};

/// Whether a loop started now gets through these texts: by then every wait of a loop that was
/// started earlier with the same texts would be over.
bool runsThrough(const QStringList &texts, int intervalMs)
{
    Bench other;
    other.run(texts, intervalMs);
    return !other.passEnded.isEmpty() || other.passEnded.wait();
}

} // namespace

void TestSendLoop::nothingRunsByItself()
{
    Bench bench;
    bench.loop.runPass();
    QVERIFY(!bench.loop.isRunning());
    QVERIFY(bench.foundNothing.isEmpty());
    bench.start({"01"}, 1);
    QVERIFY(bench.loop.isRunning());
    QVERIFY(runsThrough({"01"}, 1));
    QVERIFY(bench.link.blocks.isEmpty());
}

void TestSendLoop::fastModeSendsBlocks()
{
    Bench bench;
    bench.run({"01", "02", "++30", "03"}, 0);
    QCOMPARE(bench.written(), QString("0102"));
    QTRY_COMPARE(bench.passEnded.size(), 1);
    QCOMPARE(bench.written(), QString("0102 03"));
    QVERIFY(bench.gapBefore(1) >= 30 * nsPerMs);
    QCOMPARE(bench.loop.sentCount(), 0);
    QVERIFY(bench.loop.isRunning());
}

void TestSendLoop::fastModeWithoutPauseEndsAtOnce()
{
    Bench bench;
    bench.run({"01", "++", "02"}, 0);
    QCOMPARE(bench.written(), QString("01 02"));
    QCOMPARE(bench.passEnded.size(), 1);
}

void TestSendLoop::intervalModeSendsRowByRow()
{
    Bench bench;
    bench.run({"01", "02", "03"}, 20);
    QCOMPARE(bench.written(), QString("01"));
    QTRY_COMPARE(bench.passEnded.size(), 1);
    QCOMPARE(bench.written(), QString("01 02 03"));
    QVERIFY(bench.gapBefore(1) >= 20 * nsPerMs);
    QVERIFY(bench.gapBefore(2) >= 20 * nsPerMs);
    QVERIFY(bench.endedAtNs - bench.link.writtenAtNs.last() >= 20 * nsPerMs);
    QVERIFY(bench.loop.isRunning());
}

void TestSendLoop::manyShortIntervalsAreWhole()
{
    constexpr int rows = 40;
    constexpr int intervalMs = 2;
    QStringList texts;
    for (int i = 0; i < rows; ++i) {
        texts.append(QStringLiteral("01"));
    }
    Bench bench;
    bench.run(texts, intervalMs);
    QTRY_COMPARE(bench.passEnded.size(), 1);
    QCOMPARE(bench.link.blocks.size(), rows);
    for (int block = 1; block < rows; ++block) {
        QVERIFY(bench.gapBefore(block) >= intervalMs * nsPerMs);
    }
}

void TestSendLoop::intervalModeAddsPauses()
{
    Bench bench;
    bench.run({"01", "++40", "02"}, 20);
    QTRY_COMPARE(bench.passEnded.size(), 1);
    QCOMPARE(bench.written(), QString("01 02"));
    QVERIFY(bench.gapBefore(1) >= 60 * nsPerMs);
}

void TestSendLoop::textsWithoutPauseAreSkipped_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("marker alone") << "++";
    QTest::newRow("no pause") << "++0";
    QTest::newRow("no number") << "++abc";
}

void TestSendLoop::textsWithoutPauseAreSkipped()
{
    QFETCH(QString, text);
    Bench bench;
    bench.run({text, text}, 60000);
    QCOMPARE(bench.passEnded.size(), 1);
    QVERIFY(bench.link.blocks.isEmpty());
    QVERIFY(bench.messages.isEmpty());
    QCOMPARE(bench.loop.sentCount(), 0);
}

void TestSendLoop::pausesAddUp_data()
{
    QTest::addColumn<int>("intervalMs");

    QTest::newRow("fast mode") << 0;
    QTest::newRow("interval mode") << 1;
}

void TestSendLoop::pausesAddUp()
{
    QFETCH(int, intervalMs);
    Bench bench;
    QElapsedTimer sinceStart;
    sinceStart.start();
    bench.run({"++20", "++30", "01"}, intervalMs);
    QVERIFY(bench.link.blocks.isEmpty());
    QTRY_COMPARE(bench.link.blocks.size(), 1);
    QVERIFY(sinceStart.nsecsElapsed() >= 50 * nsPerMs);
}

void TestSendLoop::intervalCountsFromTheHandOver()
{
    Bench bench;
    bench.link.whileWaiting = [] { QThread::msleep(15); };
    qint64 handedOverAtNs = 0;
    connect(&bench.sender, &Sender::handedOver, this, [&] {
        if (bench.link.blocks.size() == 1) {
            handedOverAtNs = bench.link.clock.nsecsElapsed();
        }
    });
    bench.run({"01", "02"}, 20);
    QTRY_COMPARE(bench.link.blocks.size(), 2);
    QVERIFY(bench.link.writtenAtNs.at(1) - handedOverAtNs >= 20 * nsPerMs);
}

void TestSendLoop::intervalFollowsARowWithNothingToSend()
{
    Bench bench;
    qint64 dismissedAtNs = 0;
    connect(&bench.sender, &Sender::message, this, [&] {
        QThread::msleep(15);
        dismissedAtNs = bench.link.clock.nsecsElapsed();
    });
    bench.run({"1", "02"}, 20);
    QTRY_COMPARE(bench.passEnded.size(), 1);
    QCOMPARE(bench.messages.size(), 1);
    QCOMPARE(bench.messages.at(0).at(0).toString(), QString("No thing to send!"));
    QCOMPARE(bench.written(), QString("02"));
    QVERIFY(bench.link.writtenAtNs.at(0) - dismissedAtNs >= 20 * nsPerMs);
}

void TestSendLoop::passesFollowOneAnother()
{
    Bench bench;
    connect(&bench.loop, &SendLoop::passEnded, &bench.loop, &SendLoop::runPass,
            Qt::QueuedConnection);
    bench.run({"01", "++2", "02"}, 1);
    QTRY_VERIFY(bench.link.blocks.size() >= 5);
    bench.loop.stop();
    QVERIFY(bench.written().startsWith("01 02 01 02 01"));
}

void TestSendLoop::passIsNotEnteredTwice()
{
    Bench bench;
    bench.run({"01", "02"}, 20);
    bench.loop.runPass();
    QCOMPARE(bench.written(), QString("01"));
    QTRY_COMPARE(bench.passEnded.size(), 1);
    QCOMPARE(bench.written(), QString("01 02"));
    QVERIFY(bench.gapBefore(1) >= 20 * nsPerMs);
}

void TestSendLoop::sentCountOfAPass()
{
    Bench bench;
    bench.run({"01", "++1", "1", "02"}, 1);
    QTRY_COMPARE(bench.passEnded.size(), 1);
    QCOMPARE(bench.loop.sentCount(), 3);
    bench.loop.runPass();
    QTRY_COMPARE(bench.passEnded.size(), 2);
    QCOMPARE(bench.loop.sentCount(), 6);
    bench.loop.stop();
    QCOMPARE(bench.loop.sentCount(), 0);
}

void TestSendLoop::stopEndsAWait_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<int>("intervalMs");

    QTest::newRow("interval") << QStringList{"01", "02"} << 20;
    QTest::newRow("pause in fast mode") << QStringList{"01", "++20", "02"} << 0;
    QTest::newRow("pause in interval mode") << QStringList{"01", "++20", "02"} << 1;
}

void TestSendLoop::stopEndsAWait()
{
    QFETCH(QStringList, texts);
    QFETCH(int, intervalMs);
    Bench bench;
    bench.run(texts, intervalMs);
    QCOMPARE(bench.written(), QString("01"));
    bench.loop.stop();
    QVERIFY(!bench.loop.isRunning());
    QCOMPARE(bench.loop.sentCount(), 0);
    QVERIFY(runsThrough(texts, intervalMs));
    bench.loop.runPass();
    QCOMPARE(bench.written(), QString("01"));
    QVERIFY(bench.passEnded.isEmpty());
    QVERIFY(bench.foundNothing.isEmpty());
}

void TestSendLoop::stopBetweenBlocks()
{
    Bench bench;
    connect(&bench.sender, &Sender::sent, &bench.loop, &SendLoop::stop);
    bench.run({"01", "++", "02"}, 0);
    QCOMPARE(bench.written(), QString("01"));
    QVERIFY(bench.passEnded.isEmpty());
}

void TestSendLoop::stopDuringAMessage()
{
    Bench bench;
    connect(&bench.sender, &Sender::message, &bench.loop, &SendLoop::stop);
    bench.run({"1", "02"}, 1);
    QCOMPARE(bench.messages.size(), 1);
    QVERIFY(!bench.loop.isRunning());
    QCOMPARE(bench.loop.sentCount(), 0);
    QVERIFY(runsThrough({"01", "02"}, 1));
    QVERIFY(bench.link.blocks.isEmpty());
    QVERIFY(bench.passEnded.isEmpty());
}

void TestSendLoop::stopInsideABlockingMessage()
{
    Bench bench;
    connect(&bench.sender, &Sender::message, this, [&] {
        QEventLoop box;
        QTimer::singleShot(5, &box, [&] {
            bench.loop.stop();
            box.quit();
        });
        box.exec();
    });
    bench.run({"01", "2", "03"}, 1);
    QTRY_COMPARE(bench.messages.size(), 1);
    QTRY_VERIFY(!bench.loop.isRunning());
    QVERIFY(runsThrough({"01", "02", "03"}, 1));
    QCOMPARE(bench.written(), QString("01"));
    QCOMPARE(bench.loop.sentCount(), 0);
}

void TestSendLoop::startAgainAfterAStop()
{
    Bench bench;
    const auto stopAtSecond = connect(&bench.sender, &Sender::sent, this, [&] {
        if (bench.link.blocks.size() == 2) {
            bench.loop.stop();
        }
    });
    bench.run({"01", "02", "03"}, 20);
    QTRY_VERIFY(!bench.loop.isRunning());
    disconnect(stopAtSecond);
    bench.run({"04", "05"}, 20);
    QCOMPARE(bench.written(), QString("01 02 04"));
    QTRY_COMPARE(bench.passEnded.size(), 1);
    QCOMPARE(bench.written(), QString("01 02 04 05"));
    QVERIFY(bench.gapBefore(3) >= 20 * nsPerMs);
    QCOMPARE(bench.loop.sentCount(), 2);
}

void TestSendLoop::startReplacesTheRunningPlan()
{
    Bench bench;
    bench.run({"01", "02"}, 5);
    bench.start({"03"}, 0);
    QCOMPARE(bench.loop.sentCount(), 0);
    QVERIFY(runsThrough({"01", "02"}, 5));
    QCOMPARE(bench.written(), QString("01"));
    bench.loop.runPass();
    QCOMPARE(bench.written(), QString("01 03"));
    QCOMPARE(bench.passEnded.size(), 1);
}

void TestSendLoop::restartDuringAMessageKeepsItsPauses()
{
    Bench bench;
    qint64 restartedAtNs = 0;
    connect(&bench.sender, &Sender::message, this, [&] {
        bench.loop.stop();
        restartedAtNs = bench.link.clock.nsecsElapsed();
        bench.run({"++60", "03"}, 5);
    });
    bench.run({"1", "02"}, 5);
    QTRY_COMPARE(bench.passEnded.size(), 1);
    QCOMPARE(bench.written(), QString("03"));
    QVERIFY(bench.link.writtenAtNs.at(0) - restartedAtNs >= 60 * nsPerMs);
    QCOMPARE(bench.loop.sentCount(), 1);
}

void TestSendLoop::restartDuringABlockKeepsItsIntervals()
{
    Bench bench;
    connect(&bench.sender, &Sender::sent, this, [&](const QString &text) {
        if (text == QLatin1String("01 ")) {
            bench.loop.stop();
            bench.run({"03", "04"}, 30);
        }
    });
    bench.run({"01", "++", "02"}, 0);
    QTRY_COMPARE(bench.passEnded.size(), 1);
    QCOMPARE(bench.written(), QString("01 03 04"));
    QVERIFY(bench.gapBefore(2) >= 30 * nsPerMs);
}

void TestSendLoop::emptyPlanFindsNothing_data()
{
    QTest::addColumn<int>("intervalMs");

    QTest::newRow("fast mode") << 0;
    QTest::newRow("interval mode") << 1;
}

void TestSendLoop::emptyPlanFindsNothing()
{
    QFETCH(int, intervalMs);
    Bench bench;
    bool runningWhenTold = true;
    connect(&bench.loop, &SendLoop::foundNothing, this,
            [&] { runningWhenTold = bench.loop.isRunning(); });
    bench.start({}, intervalMs);
    QVERIFY(bench.loop.isRunning());
    bench.loop.runPass();
    QCOMPARE(bench.foundNothing.size(), 1);
    QVERIFY(!runningWhenTold);
    QVERIFY(!bench.loop.isRunning());
    QVERIFY(bench.passEnded.isEmpty());
}

void TestSendLoop::rowsWithoutFramesAreAPass()
{
    Bench bench;
    bench.run({"1"}, 0);
    QCOMPARE(bench.passEnded.size(), 1);
    QVERIFY(bench.foundNothing.isEmpty());
    QVERIFY(bench.messages.isEmpty());
    QVERIFY(bench.loop.isRunning());
}

void TestSendLoop::closedLinkIsPassedOver_data()
{
    emptyPlanFindsNothing_data();
}

void TestSendLoop::closedLinkIsPassedOver()
{
    QFETCH(int, intervalMs);
    Bench bench;
    bench.link.open = false;
    bench.run({"01", "++1", "02"}, intervalMs);
    QTRY_COMPARE(bench.passEnded.size(), 1);
    QVERIFY(bench.link.calls.isEmpty());
    QVERIFY(bench.messages.isEmpty());
}

QTEST_GUILESS_MAIN(TestSendLoop)
#include "tst_sendloop.moc"

#include "fakeframesettings.h"
#include "fakelink.h"
#include "frames/sender.h"
#include "session/loopcontrol.h"

#include <QSignalSpy>
#include <QtTest>

class TestLoopControl : public QObject
{
    Q_OBJECT

private slots:
    void passesRunByThemselves();
    void theLastPassStopsIt();
    void aStopBeforeAPassPreventsIt();
    void aStopIsToldOnce();
    void theLinkMustBeOpen();
    void somethingMustBeChecked();
    void tooManyEntriesAreRefused();
    void overlongRowsAreToldAndLeftOut();
    void aLinkLostDuringAMessageStartsNothing();
    void aFrameIsNearShortlyBeforeItIsDue();
};

namespace {

/// A loop control on a fake link, with all it tells in one list.
class Bench
{
public:
    Bench()
    {
        sender.setLink(&link);
        QObject::connect(&sender, &Sender::notice, &sender,
                         [this](const QString &text) { said.append(text); });
        QObject::connect(&loop, &LoopControl::notice, &loop,
                         [this](const QString &text) { said.append(text); });
        QObject::connect(&loop, &LoopControl::started, &loop, [this] { said.append("started"); });
        QObject::connect(&loop, &LoopControl::stopped, &loop, [this] { said.append("stopped"); });
    }

    FakeFrameSettings settings;
    FakeLink link;
    Sender sender{settings};
    LoopControl loop{sender};
    QStringList said;
};

QVector<CheckedRow> rows(int count, const QString &frameText)
{
    QVector<CheckedRow> all;
    for (int number = 1; number <= count; ++number) {
        all.append({number, frameText});
    }
    return all;
}

} // namespace

void TestLoopControl::passesRunByThemselves()
{
    Bench bench;
    bench.loop.start(rows(2, "0310"), {1, 0});
    QVERIFY(bench.loop.isRunning());
    QTRY_VERIFY(bench.link.blocks.size() >= 6);
    QCOMPARE(bench.said, QStringList{"started"});
}

void TestLoopControl::theLastPassStopsIt()
{
    Bench bench;
    QVector<qint64> passes;
    connect(&bench.loop, &LoopControl::passBegan, &bench.loop,
            [&passes](qint64 pass) { passes.append(pass); });
    bench.loop.start(rows(2, "0310"), {1, 0, 3});
    QTRY_VERIFY(!bench.loop.isRunning());
    QCOMPARE(bench.link.blocks.size(), 6);
    QCOMPARE(bench.said, (QStringList{"started", "stopped"}));
    QCOMPARE(passes, (QVector<qint64>{1, 2, 3}));
}

void TestLoopControl::aStopBeforeAPassPreventsIt()
{
    Bench bench;
    int passes = 0;
    connect(&bench.loop, &LoopControl::passDue, &bench.loop, [&bench, &passes] {
        if (++passes == 3) {
            bench.loop.stop();
        }
    });
    bench.loop.start(rows(2, "0310"), {1, 0});
    QTRY_VERIFY(!bench.loop.isRunning());
    QCOMPARE(bench.link.blocks.size(), 4);
}

void TestLoopControl::aStopIsToldOnce()
{
    Bench bench;
    bench.loop.stop();
    bench.loop.start(rows(1, "0310"), {0, 0});
    bench.loop.stop();
    bench.loop.stop();
    QVERIFY(!bench.loop.isRunning());
    QCOMPARE(bench.said, (QStringList{"started", "stopped"}));
}

void TestLoopControl::theLinkMustBeOpen()
{
    Bench bench;
    bench.link.close();
    bench.loop.start(rows(1, "0310"), {0, 0});
    QVERIFY(!bench.loop.isRunning());
    QCOMPARE(bench.said, QStringList{"closed"});
}

void TestLoopControl::somethingMustBeChecked()
{
    Bench bench;
    bench.loop.start({}, {0, 0});
    QVERIFY(!bench.loop.isRunning());
    QCOMPARE(bench.said, QStringList{"Not a Command was selected to send!"});
}

void TestLoopControl::tooManyEntriesAreRefused()
{
    Bench bench;
    QVector<CheckedRow> all;
    for (int pair = 0; pair < queueLimit; ++pair) {
        all += rows(1, "0310");
        all += rows(1, "++1");
    }
    bench.loop.start(all, {0, 0});
    QVERIFY(!bench.loop.isRunning());
    QCOMPARE(bench.said, QStringList{"Too many order!"});
}

void TestLoopControl::overlongRowsAreToldAndLeftOut()
{
    Bench bench;
    bench.loop.start(rows(1, QString(2 * 65536, '0')) + rows(1, "0310"), {1, 0});
    QTRY_VERIFY(bench.link.blocks.size() >= 2);
    QCOMPARE(bench.said, (QStringList{overlongRowsMessage({1}), "started"}));
    for (const QByteArray &block : std::as_const(bench.link.blocks)) {
        QCOMPARE(block.right(2).toHex(), QByteArray("0310"));
    }
}

void TestLoopControl::aLinkLostDuringAMessageStartsNothing()
{
    Bench bench;
    connect(&bench.loop, &LoopControl::notice, &bench.loop, [&bench] { bench.link.close(); });
    bench.loop.start(rows(1, QString(2 * 65536, '0')) + rows(1, "0310"), {1, 0});
    QVERIFY(!bench.loop.isRunning());
    QCOMPARE(bench.said, QStringList{overlongRowsMessage({1})});
}

void TestLoopControl::aFrameIsNearShortlyBeforeItIsDue()
{
    Bench bench;
    QVERIFY(!bench.loop.isFrameNear());
    bench.loop.start(rows(1, "0310"), {1000, 10000});
    QVERIFY(!bench.loop.isFrameNear());
    bench.loop.runPass();
    QCOMPARE(bench.link.blocks.size(), 1);
    QVERIFY(!bench.loop.isFrameNear());
    bench.loop.start(rows(1, "0310"), {1000, 0});
    QVERIFY(bench.loop.isFrameNear());
}

QTEST_GUILESS_MAIN(TestLoopControl)

#include "tst_loopcontrol.moc"

#include "frames/headernotice.h"
#include "senderbench.h"

#include <QtTest>

class TestSender : public QObject
{
    Q_OBJECT

private slots:
    void oneFrame();
    void oneWithCrc();
    void oneOverAClosedLink();
    void oneWithNothingToSend_data();
    void oneWithNothingToSend();
    void oneOfADelayRow_data();
    void oneOfADelayRow();
    void oneTooLong_data();
    void oneTooLong();
    void warningComesBeforeTheFrame();
    void oneWhoseLinkClosesDuringAMessage();
    void oneReadsTheLayoutOnce();
    void aBadHeaderIsToldOnceForEachAct();
    void aBadHeaderIsToldBeforeTheFrame();

    void loopPlanChecksNoLink();
    void aTextIsHandedOverAndTold();
    void aBlockIsHandedOverAndTold();
    void whatWaitsIsBounded_data();
    void whatWaitsIsBounded();
    void framesHaveTheTimeOfTheirHandover();
    void framesTellWhichRowTheyAreOf();
    void linkCanBeExchanged();
};

void TestSender::oneFrame()
{
    SenderBench bench;
    bench.sender.sendOne("010203");
    QCOMPARE(bench.link.blocks, QVector<QByteArray>{QByteArray::fromHex("5aa503010203")});
    QCOMPARE(bench.said, (QStringList{"handed over", "sent 5A A5 03 01 02 03 "}));
}

void TestSender::oneWithCrc()
{
    SenderBench bench;
    bench.settings.layout.withCrc = true;
    bench.sender.sendOne("010300000001");
    QCOMPARE(bench.said.last(), QString("sent 5A A5 08 01 03 00 00 00 01 84 0A "));
}

void TestSender::oneOverAClosedLink()
{
    SenderBench bench;
    bench.link.close();
    bench.sender.sendOne(payloadOf(70000));
    QCOMPARE(bench.said, QStringList{"message closed"});
    QVERIFY(bench.link.blocks.isEmpty());
    QCOMPARE(bench.settings.layoutsRead, 0);
}

void TestSender::oneWithNothingToSend_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << QString();
    QTest::newRow("odd") << "012";
    QTest::newRow("comment") << "/01";
}

void TestSender::oneWithNothingToSend()
{
    QFETCH(QString, text);
    SenderBench bench;
    bench.sender.sendOne(text);
    QCOMPARE(bench.said, QStringList{"message No thing to send!"});
    QVERIFY(bench.link.blocks.isEmpty());
}

void TestSender::oneOfADelayRow_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("pause") << "++1000";
    QTest::newRow("no number") << "++";
    QTest::newRow("overlong") << "++" + payloadOf(300);
}

void TestSender::oneOfADelayRow()
{
    QFETCH(QString, text);
    SenderBench bench;
    bench.link.longest = 255;
    bench.settings.unreadable = QStringLiteral("5A");
    bench.sender.sendOne(text);
    QCOMPARE(bench.said, QStringList{"message No thing to send!"});
    QVERIFY(bench.link.blocks.isEmpty());
}

void TestSender::oneTooLong_data()
{
    QTest::addColumn<int>("longest");
    QTest::addColumn<int>("payloadBytes");
    QTest::addColumn<bool>("withCrc");
    QTest::addColumn<int>("warned");

    QTest::newRow("fits") << 255 << 255 << false << 0;
    QTest::newRow("one more") << 255 << 256 << false << 256;
    QTest::newRow("fits with CRC") << 255 << 253 << true << 0;
    QTest::newRow("one more with CRC") << 255 << 254 << true << 256;
    QTest::newRow("300") << 255 << 300 << false << 300;
    QTest::newRow("300 with CRC") << 255 << 300 << true << 302;
    QTest::newRow("large fits") << 65535 << 65535 << false << 0;
    QTest::newRow("large, one more") << 65535 << 65536 << false << 65536;
    QTest::newRow("large fits with CRC") << 65535 << 65533 << true << 0;
    QTest::newRow("large, one more with CRC") << 65535 << 65534 << true << 65536;
}

void TestSender::oneTooLong()
{
    QFETCH(int, longest);
    QFETCH(int, payloadBytes);
    QFETCH(bool, withCrc);
    QFETCH(int, warned);
    SenderBench bench;
    bench.link.longest = longest;
    bench.settings.layout.withCrc = withCrc;
    bench.sender.sendOne(payloadOf(payloadBytes));
    QCOMPARE(bench.said.value(0), warned > 0 ? lengthWarning(warned) : QString("handed over"));
    QCOMPARE(bench.link.blocks.size(), 1);
    QCOMPARE(bench.link.blocks.at(0).size(), 3 + payloadBytes + (withCrc ? 2 : 0));
}

void TestSender::warningComesBeforeTheFrame()
{
    SenderBench bench;
    bench.link.longest = 1;
    bool warnedFirst = false;
    QObject::connect(&bench.sender, &Sender::notice, &bench.sender,
                     [&] { warnedFirst = bench.link.blocks.isEmpty(); });
    bench.sender.sendOne("0102");
    QVERIFY(warnedFirst);
    QCOMPARE(bench.said, (QStringList{lengthWarning(2), "handed over", "sent 5A A5 02 01 02 "}));
}

void TestSender::oneWhoseLinkClosesDuringAMessage()
{
    SenderBench bench;
    bench.settings.onNextLayout = [&] { bench.link.close(); };
    bench.sender.sendOne("0102");
    QVERIFY(bench.link.blocks.isEmpty());
    QVERIFY(bench.said.isEmpty());
}

void TestSender::oneReadsTheLayoutOnce()
{
    SenderBench bench;
    bench.sender.sendOne("0102");
    QCOMPARE(bench.settings.layoutsRead, 1);
    bench.sender.sendOne("012");
    QCOMPARE(bench.settings.layoutsRead, 2);
}

void TestSender::aBadHeaderIsToldOnceForEachAct()
{
    const QString told = "message Startbytes Length error";
    const QVector<CheckedRow> rows{{1, "01"}, {2, "++5"}, {3, "02"}};
    SenderBench bench;
    bench.settings.unreadable = QStringLiteral("5A");
    for (int act = 1; act <= 2; ++act) {
        bench.sender.sendOne("01");
        QCOMPARE(bench.said.count(told), 3 * act - 2);
        bench.sender.sendAll(rows);
        QCOMPARE(bench.said.count(told), 3 * act - 1);
        bench.sender.planLoop(rows);
        QCOMPARE(bench.said.count(told), 3 * act);
    }
    bench.settings.unreadable.reset();
    bench.sender.sendAll(rows);
    QCOMPARE(bench.said.count(told), 6);
}

void TestSender::aBadHeaderIsToldBeforeTheFrame()
{
    SenderBench bench;
    bench.settings.unreadable = QStringLiteral("5A");
    QObject::connect(&bench.sender, &Sender::notice, &bench.sender, [&] {
        bench.settings.layout.startBytes = StartBytes{0x12, 0x34};
    });
    bench.sender.sendOne("01");
    QCOMPARE(bench.said,
             (QStringList{"message Startbytes Length error", "handed over", "sent 5A A5 01 01 "}));
}

void TestSender::loopPlanChecksNoLink()
{
    SenderBench bench;
    bench.link.close();
    bench.settings.layout.withCrc = true;
    const LoopPlan plan = bench.sender.planLoop({{1, "010300000001"}, {2, payloadOf(65531)}});
    QCOMPARE(plan.overlongRows, QVector<int>{2});
    QCOMPARE(plan.queue.size(), 1);
    QCOMPARE(plan.queue.at(0).block.toHex(' '), QByteArray("5a a5 08 01 03 00 00 00 01 84 0a"));
    QVERIFY(bench.said.isEmpty());
}

void TestSender::aTextIsHandedOverAndTold()
{
    SenderBench bench;
    HeaderNotice notice;
    const QByteArray frame = bench.sender.handOverText("01", notice);
    QCOMPARE(bench.said, QStringList{"handed over"});
    bench.sender.tellFrame(frame);
    QCOMPARE(bench.said, (QStringList{"handed over", "sent 5A A5 01 01 "}));
    QCOMPARE(bench.sender.handOverText("1", notice), QByteArray());
    bench.link.close();
    QCOMPARE(bench.sender.handOverText("01", notice), QByteArray());
    QCOMPARE(bench.link.blocks, QVector<QByteArray>{frame});
}

void TestSender::aBlockIsHandedOverAndTold()
{
    SenderBench bench;
    const QByteArray block = QByteArray::fromHex("5aa501015aa50102");
    QCOMPARE(bench.sender.handOverBlock(block), block);
    QCOMPARE(bench.said, QStringList{"handed over"});
    bench.sender.tellBlock(block);
    QCOMPARE(bench.said, (QStringList{"handed over", "sent 5A A5 01 01 ", "sent 5A A5 01 02 "}));
    bench.link.close();
    QCOMPARE(bench.sender.handOverBlock(block), QByteArray());
    bench.sender.tellBlock({});
    QCOMPARE(bench.said.size(), 3);
}

void TestSender::whatWaitsIsBounded_data()
{
    constexpr qint64 most = 1048576;
    QTest::addColumn<qint64>("unsent");
    QTest::addColumn<bool>("isTaken");

    QTest::newRow("just fits") << most - 4 << true;
    QTest::newRow("a byte too many") << most - 3 << false;
    QTest::newRow("far too many") << 2 * most << false;
}

void TestSender::whatWaitsIsBounded()
{
    QFETCH(qint64, unsent);
    QFETCH(bool, isTaken);
    SenderBench bench;
    bench.link.unsent = unsent;
    const QString refusal =
        QString("message Not sent: the device has yet to take %1 bytes.").arg(unsent);
    const QString sent = "sent 5A A5 01 01 ";
    const QStringList once = isTaken ? QStringList{"handed over", sent} : QStringList{refusal};
    bench.sender.sendOne("01");
    QCOMPARE(bench.said, once);
    bench.sender.sendAll({{1, "01"}});
    QCOMPARE(bench.said, once + once);
    QCOMPARE(bench.link.blocks.size(), isTaken ? 2 : 0);
    // However long, a block that nothing waits before goes.
    bench.link.unsent = 0;
    bench.sender.sendOne(payloadOf(1100000));
    QCOMPARE(bench.link.blocks.last().size(), 1100003);
}

void TestSender::framesHaveTheTimeOfTheirHandover()
{
    SenderBench bench;
    qint64 written = 0;
    bench.link.onWrite = [&written] { written = ArrivalTime::now().monotonicNs; };
    QVector<qint64> times;
    connect(&bench.sender, &Sender::sent, this,
            [&times](const QByteArray & /*frame*/, ArrivalTime time) {
                times.append(time.monotonicNs);
            });
    const qint64 before = ArrivalTime::now().monotonicNs;
    bench.sender.sendAll({{1, "01"}, {2, "02"}});
    QCOMPARE(times.size(), 2);
    QCOMPARE(times.first(), times.last());
    QVERIFY(before <= times.first() && times.first() <= written);
}

void TestSender::framesTellWhichRowTheyAreOf()
{
    SenderBench bench;
    QVector<int> ids;
    connect(&bench.sender, &Sender::sent, this,
            [&ids](const QByteArray & /*frame*/, ArrivalTime /*time*/, int id) { ids.append(id); });
    bench.sender.sendOne(CheckedRow{1, "01", {}, 41});
    bench.sender.sendOne(QString("02"));
    QCOMPARE(ids, (QVector<int>{41, 0}));
    ids.clear();
    // The first payload has start bytes in it, the second is no frame, the third a pause.
    bench.sender.sendAll(
        {{1, "035AA50102", {}, 51}, {2, "0", {}, 52}, {3, "++1", {}, 53}, {4, "04", {}, 54}});
    QCOMPARE(ids, (QVector<int>{51, 51, 54}));
    ids.clear();
    const LoopPlan plan = bench.sender.planLoop({{1, "01", {}, 61}, {2, "02", {}, 62}});
    QCOMPARE(plan.textRows.at(1).rowId, 62);
    bench.sender.tellBlock(
        bench.sender.handOverBlock(plan.queue.at(0).block, plan.queue.at(0).parts));
    bench.sender.tellBlock(bench.sender.handOverBlock(plan.queue.at(0).block));
    QCOMPARE(ids, (QVector<int>{61, 62, 0, 0}));
}

void TestSender::linkCanBeExchanged()
{
    SenderBench bench;
    FakeLink other;
    bench.sender.setLink(&other);
    bench.link.close();
    QVERIFY(bench.sender.isLinkOpen());
    bench.sender.sendOne("01");
    QCOMPARE(other.blocks.size(), 1);
    QVERIFY(bench.link.blocks.isEmpty());
    other.close();
    QVERIFY(!bench.sender.requireOpenLink());
    QCOMPARE(bench.said.last(), QString("message closed"));
}

QTEST_APPLESS_MAIN(TestSender)
#include "tst_sender.moc"

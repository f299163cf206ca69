#include "senderbench.h"

#include <QtTest>

/// Rows that are sent together.
class TestSendAll : public QObject
{
    Q_OBJECT

private slots:
    void allInOneWrite();
    void allOverAClosedLink();
    void allOfNothing();
    void allLeavesOverlongRowsOut();
    void allOverlong();
    void allWhoseLinkClosesDuringAMessage();
    void allReadsTheLayoutForEachRow();
    void allWithoutStartBytesIsOneLogRow();
    void allCutsAtStartBytesInPayloads();
};

void TestSendAll::allInOneWrite()
{
    SenderBench bench;
    bench.sender.sendAll({{1, "01"}, {2, "++5000"}, {4, "0203"}});
    QCOMPARE(bench.link.blocks, QVector<QByteArray>{QByteArray::fromHex("5aa501015aa5020203")});
    QCOMPARE(bench.said, (QStringList{"handed over", "sent 5A A5 01 01 ", "sent 5A A5 02 02 03 "}));
}

void TestSendAll::allOverAClosedLink()
{
    SenderBench bench;
    bench.link.close();
    bench.sender.sendAll({{1, "01"}});
    QCOMPARE(bench.said, QStringList{"message closed"});
    QVERIFY(bench.link.blocks.isEmpty());
    QCOMPARE(bench.settings.layoutsRead, 0);
}

void TestSendAll::allOfNothing()
{
    const QVector<QVector<CheckedRow>> selections{{}, {{1, "++10"}}, {{1, "012"}, {2, "/"}}};
    for (const QVector<CheckedRow> &rows : selections) {
        SenderBench bench;
        bench.sender.sendAll(rows);
        QCOMPARE(bench.said, QStringList{"message Not thing to send!"});
        QVERIFY(bench.link.blocks.isEmpty());
    }
}

void TestSendAll::allLeavesOverlongRowsOut()
{
    SenderBench bench;
    bench.sender.sendAll({{2, payloadOf(65533)}, {3, "01"}, {6, payloadOf(70000)}});
    QCOMPARE(bench.said, (QStringList{"message row: 2 6 instruction length is out of the maximum "
                                      "range, sending errors may occur!",
                                      "handed over", "sent 5A A5 01 01 "}));
    QCOMPARE(bench.settings.layoutsRead, 1);
}

void TestSendAll::allOverlong()
{
    SenderBench bench;
    bench.sender.sendAll({{5, payloadOf(70000)}});
    QCOMPARE(bench.said, (QStringList{"message row: 5 instruction length is out of the maximum "
                                      "range, sending errors may occur!",
                                      "message Not thing to send!"}));
}

void TestSendAll::allWhoseLinkClosesDuringAMessage()
{
    SenderBench bench;
    bench.settings.onNextLayout = [&] { bench.link.close(); };
    bench.sender.sendAll({{1, "01"}});
    QVERIFY(bench.link.blocks.isEmpty());
    QVERIFY(bench.said.isEmpty());
}

void TestSendAll::allReadsTheLayoutForEachRow()
{
    SenderBench bench;
    bench.settings.onNextLayout = [&] {
        bench.settings.layout.startBytes.first = static_cast<quint8>(bench.settings.layoutsRead);
    };
    bench.sender.sendAll({{1, "01"}, {2, "++1"}, {3, "02"}});
    QCOMPARE(bench.settings.layoutsRead, 2);
    QCOMPARE(bench.link.blocks, QVector<QByteArray>{QByteArray::fromHex("01a5010102a50102")});
}

void TestSendAll::allWithoutStartBytesIsOneLogRow()
{
    SenderBench bench;
    bench.settings.layout.withStartBytes = false;
    bench.sender.sendAll({{1, "01"}, {2, "02"}});
    QCOMPARE(bench.said, (QStringList{"handed over", "sent 01 01 01 02 "}));
}

void TestSendAll::allCutsAtStartBytesInPayloads()
{
    SenderBench bench;
    bench.sender.sendAll({{1, "5AA501"}, {2, "02"}});
    QCOMPARE(bench.link.blocks.size(), 1);
    QCOMPARE(bench.said,
             (QStringList{"handed over", "sent 5A A5 03 ", "sent 5A A5 01 ", "sent 5A A5 01 02 "}));
}

QTEST_APPLESS_MAIN(TestSendAll)
#include "tst_sendall.moc"

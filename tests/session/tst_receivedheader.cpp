#include "session/receivedheader.h"

#include <QSignalSpy>
#include <QtTest>

class TestReceivedHeader : public QObject
{
    Q_OBJECT

private slots:
    void aReadableTextIsNotTold();
    void anUnreadableTextIsToldOnceUntilItChanges();
    void aChangeWithdrawsWhatIsNotToldYet();
    void nothingIsToldWhileSomebodyTypes();
};

void TestReceivedHeader::aReadableTextIsNotTold()
{
    ReceivedHeader header;
    QSignalSpy unreadable(&header, &ReceivedHeader::unreadable);
    header.setText("0x01,0x02");
    QCOMPARE(int(header.startBytes().first), 1);
    QCOMPARE(int(header.startBytes().second), 2);
    QVERIFY(!unreadable.wait(50));
}

void TestReceivedHeader::anUnreadableTextIsToldOnceUntilItChanges()
{
    ReceivedHeader header;
    QSignalSpy unreadable(&header, &ReceivedHeader::unreadable);
    header.setText("0x01");
    QCOMPARE(int(header.startBytes().first), 0xA5);
    QCOMPARE(unreadable.count(), 0);
    QVERIFY(unreadable.wait());
    header.startBytes();
    QVERIFY(!unreadable.wait(50));
    header.setText("0x02");
    header.startBytes();
    QVERIFY(unreadable.wait());
    QCOMPARE(unreadable.count(), 2);
}

void TestReceivedHeader::aChangeWithdrawsWhatIsNotToldYet()
{
    ReceivedHeader header;
    QSignalSpy unreadable(&header, &ReceivedHeader::unreadable);
    header.setText("0x01");
    header.startBytes();
    header.setText("0x01,0x02");
    QVERIFY(!unreadable.wait(50));
}

void TestReceivedHeader::nothingIsToldWhileSomebodyTypes()
{
    ReceivedHeader header;
    QSignalSpy unreadable(&header, &ReceivedHeader::unreadable);
    QElapsedTimer timer;
    timer.start();
    header.setText("0x01");
    header.noteTyping();
    header.startBytes();
    QVERIFY(unreadable.wait());
    QVERIFY(timer.elapsed() >= 1000);
}

QTEST_GUILESS_MAIN(TestReceivedHeader)

#include "tst_receivedheader.moc"

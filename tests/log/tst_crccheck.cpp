#include "log/crccheck.h"

#include <QtTest>

class TestCrcCheck : public QObject
{
    Q_OBJECT

private slots:
    void expectedCrc_data();
    void expectedCrc();
};

void TestCrcCheck::expectedCrc_data()
{
    QTest::addColumn<QString>("frame");
    QTest::addColumn<bool>("withCrc");
    QTest::addColumn<QString>("expected");

    QTest::newRow("fits") << "5A A5 08 01 03 00 00 00 01 84 0A " << true << "";
    QTest::newRow("one bit") << "5A A5 08 01 03 00 00 00 01 84 0B " << true << "84 0A";
    QTest::newRow("bytes swapped") << "5A A5 08 01 03 00 00 00 01 0A 84 " << true << "84 0A";
    QTest::newRow("without CRC") << "5A A5 08 01 03 00 00 00 01 84 0B " << false << "";
    QTest::newRow("without address, fits") << "5A A5 03 01 7E 80 " << true << "";
    QTest::newRow("without address") << "5A A5 03 01 7E 81 " << true << "7E 80";
    QTest::newRow("CRC alone") << "5A A5 02 84 0A " << true << "";
    QTest::newRow("nothing") << "" << true << "";
}

void TestCrcCheck::expectedCrc()
{
    QFETCH(QString, frame);
    QFETCH(bool, withCrc);
    QTEST(expectedInsteadOfCrc(cutReceivedFrame(frame, withCrc)), "expected");
}

QTEST_APPLESS_MAIN(TestCrcCheck)
#include "tst_crccheck.moc"

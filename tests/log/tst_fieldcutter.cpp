#include "log/fieldcutter.h"

#include <QtTest>

class TestFieldCutter : public QObject
{
    Q_OBJECT

private slots:
    void received_data();
    void received();
    void sent_data();
    void sent();
    void lineFeedsOfReceivedTextsAreRemoved();
};

namespace {

QStringList texts(const FrameFields &fields)
{
    return {fields.header, fields.length, fields.cmd, fields.addr, fields.data, fields.crc};
}

} // namespace

void TestFieldCutter::received_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("withCrc");
    QTest::addColumn<QStringList>("fields");

    QTest::newRow("with address and CRC")
        << "5A A5 08 01 03 00 00 00 01 84 0A " << true
        << QStringList{"5A A5", " 08", " 01", "0300", " 00 00 01 ", "84 0A "};
    QTest::newRow("with address, without CRC")
        << "5A A5 06 01 03 00 00 00 01 " << false
        << QStringList{"5A A5", " 06", " 01", "0300", " 00 00 01 ", ""};
    QTest::newRow("21 characters have no address")
        << "5A A5 04 01 02 84 0A " << true
        << QStringList{"5A A5", " 04", " 01", "", " 02 ", "84 0A "};
    QTest::newRow("21 characters, without CRC")
        << "5A A5 04 01 02 84 0A " << false
        << QStringList{"5A A5", " 04", " 01", "", " 02 84 0A ", ""};
    QTest::newRow("22 characters have an address")
        << "5A A5 04 01 02 84 0A 1" << true
        << QStringList{"5A A5", " 04", " 01", "0284", "", " 0A 1"};
    QTest::newRow("24 characters") << "5A A5 05 01 02 03 84 0A " << true
                                   << QStringList{"5A A5", " 05", " 01", "0203", " ", "84 0A "};
    QTest::newRow("nothing") << "" << true << QStringList{"", "", "", "", "", ""};
    QTest::newRow("one byte") << "42 " << true << QStringList{"42 ", "", "", "", "", ""};
    QTest::newRow("an address of 00 is no sign of a long length")
        << "5A A5 08 01    00    00 00 01 84 0A " << true
        << QStringList{"5A A5", " 08", " 01", "00", "    00 00 01 ", "84 0A "};
}

void TestFieldCutter::received()
{
    QFETCH(QString, text);
    QFETCH(bool, withCrc);
    QFETCH(QStringList, fields);
    QCOMPARE(texts(cutReceivedFrame(text, withCrc)), fields);
}

void TestFieldCutter::sent_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("withCrc");
    QTest::addColumn<QStringList>("fields");

    QTest::newRow("as a received one")
        << "5A A5 08 01 03 00 00 00 01 84 0A " << true
        << QStringList{"5A A5", " 08", " 01", "0300", " 00 00 01 ", "84 0A "};
    QTest::newRow("address 00 cuts the unaltered text further on")
        << "5A A5 00    00    10 00 01 02 03 84 0A " << true
        << QStringList{"5A A5 00", "    00", "   ", "1000", "01 02 03 ", "84 0A "};
    QTest::newRow("address 0000 does not")
        << "5A A5 06 03 00 00 00 01 84 0A " << true
        << QStringList{"5A A5", " 06", " 03", "0000", " 00 01 ", "84 0A "};
}

void TestFieldCutter::sent()
{
    QFETCH(QString, text);
    QFETCH(bool, withCrc);
    QFETCH(QStringList, fields);
    QCOMPARE(texts(cutSentFrame(text, withCrc)), fields);
}

void TestFieldCutter::lineFeedsOfReceivedTextsAreRemoved()
{
    const FrameFields fields = cutReceivedFrame("5A A5 08\n 01 03 00 00 00 01 84 0A ", true);
    QCOMPARE(fields.cmd, QString(" 01"));
    QCOMPARE(fields.addr, QString("0300"));
}

QTEST_APPLESS_MAIN(TestFieldCutter)
#include "tst_fieldcutter.moc"

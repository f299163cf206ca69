#include "session/framecrc.h"

#include <QtTest>

Q_DECLARE_METATYPE(RecordEvent::Crc)

class TestFrameCrc : public QObject
{
    Q_OBJECT

private slots:
    void itIsThatOfThePayload_data();
    void itIsThatOfThePayload();
    void sentFramesFit_data();
    void sentFramesFit();
    void receivedFramesHaveStartBytesAndLength();
};

namespace {

FrameLayout layoutOf(bool withStartBytes, bool withLength, bool withCrc)
{
    FrameLayout layout;
    layout.startBytes = {0x5A, 0xA5};
    layout.withStartBytes = withStartBytes;
    layout.withLength = withLength;
    layout.withCrc = withCrc;
    return layout;
}

} // namespace

void TestFrameCrc::itIsThatOfThePayload_data()
{
    QTest::addColumn<QByteArray>("digits");
    QTest::addColumn<bool>("withCrc");
    QTest::addColumn<RecordEvent::Crc>("crc");

    using Crc = RecordEvent::Crc;
    QTest::newRow("fits") << QByteArray("5AA508010300000001840A") << true << Crc::Ok;
    QTest::newRow("another") << QByteArray("5AA508010300000001840B") << true << Crc::Bad;
    QTest::newRow("other payload") << QByteArray("5AA508010300000002840A") << true << Crc::Bad;
    QTest::newRow("without CRC") << QByteArray("5AA508010300000001840A") << false << Crc::None;
    QTest::newRow("CRC alone") << QByteArray("5AA502FFFF") << true << Crc::None;
    QTest::newRow("too short") << QByteArray("5AA50142") << true << Crc::None;
    QTest::newRow("no content") << QByteArray("5AA500") << true << Crc::None;
    QTest::newRow("start bytes") << QByteArray("5AA5") << true << Crc::None;
    QTest::newRow("nothing") << QByteArray() << true << Crc::None;
}

void TestFrameCrc::itIsThatOfThePayload()
{
    QFETCH(QByteArray, digits);
    QFETCH(bool, withCrc);
    QTEST(crcOfFrame(QByteArray::fromHex(digits), layoutOf(true, true, withCrc)), "crc");
}

void TestFrameCrc::sentFramesFit_data()
{
    QTest::addColumn<bool>("withStartBytes");
    QTest::addColumn<bool>("withLength");
    QTest::addColumn<int>("size");

    for (const int size : {1, 5, 252, 253, 254, 300, 65000}) {
        for (const int parts : {0, 1, 2, 3}) {
            QTest::addRow("%d bytes, %d", size, parts)
                << ((parts & 1) != 0) << ((parts & 2) != 0) << size;
        }
    }
}

void TestFrameCrc::sentFramesFit()
{
    QFETCH(bool, withStartBytes);
    QFETCH(bool, withLength);
    QFETCH(int, size);
    const FrameLayout layout = layoutOf(withStartBytes, withLength, true);
    QByteArray frame = frameOfPayload("\x10" + QByteArray(size - 1, 'x'), layout);
    QCOMPARE(crcOfFrame(frame, layout), RecordEvent::Crc::Ok);
    frame[frame.size() - 1] = char(frame.at(frame.size() - 1) ^ 1);
    QCOMPARE(crcOfFrame(frame, layout), RecordEvent::Crc::Bad);
}

void TestFrameCrc::receivedFramesHaveStartBytesAndLength()
{
    const FrameLayout layout = receivedLayout(layoutOf(false, false, true));
    QVERIFY(layout.withStartBytes && layout.withLength && layout.withCrc);
}

QTEST_APPLESS_MAIN(TestFrameCrc)
#include "tst_framecrc.moc"

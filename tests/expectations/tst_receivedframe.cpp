#include "expectations/receivedframe.h"

#include <QtTest>

class TestReceivedFrame : public QObject
{
    Q_OBJECT

private slots:
    void takesApart_data();
    void takesApart();
    void whatIsBuiltComesBack_data();
    void whatIsBuiltComesBack();
};

namespace {

FrameLayout layoutWith(bool start, bool length, bool crc)
{
    FrameLayout layout;
    layout.startBytes = {0x5A, 0xA5};
    layout.withStartBytes = start;
    layout.withLength = length;
    layout.withCrc = crc;
    return layout;
}

} // namespace

void TestReceivedFrame::takesApart_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("start");
    QTest::addColumn<bool>("length");
    QTest::addColumn<bool>("crc");
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<int>("verdict");

    using Crc = ReceivedFrame::Crc;
    const auto row = [](const char *name, const char *bytes, bool start, bool length, bool crc,
                        const char *payload, Crc verdict) {
        QTest::newRow(name) << QByteArray::fromHex(bytes) << start << length << crc
                            << QByteArray::fromHex(payload) << int(verdict);
    };
    row("plain", "5AA503030010", true, true, false, "030010", Crc::None);
    row("with CRC", "5AA508010300000001840A", true, true, true, "010300000001", Crc::Good);
    row("with a bad CRC", "5AA508010300000001840B", true, true, true, "010300000001", Crc::Bad);
    row("too short for a CRC", "5AA50103", true, true, true, "03", Crc::Bad);
    row("empty", "5AA500", true, true, false, "", Crc::None);
    row("no start, no length", "010300000001840A", false, false, true, "010300000001", Crc::Good);
    row("no length", "5AA50300", true, false, false, "0300", Crc::None);
    row("no start", "020300", false, true, false, "0300", Crc::None);
    row("other start bytes", "A55A0103", true, true, false, "A55A0103", Crc::None);
    row("other length", "5AA50503", true, true, false, "5AA50503", Crc::None);
}

void TestReceivedFrame::takesApart()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, start);
    QFETCH(bool, length);
    QFETCH(bool, crc);
    const ReceivedFrame frame = takenApart(bytes, layoutWith(start, length, crc), 17);
    QCOMPARE(frame.bytes, bytes);
    QCOMPARE(frame.timeNs, qint64(17));
    QTEST(frame.payload, "payload");
    QTEST(int(frame.crc), "verdict");
}

void TestReceivedFrame::whatIsBuiltComesBack_data()
{
    QTest::addColumn<int>("flags");
    for (int flags = 0; flags < 8; ++flags) {
        QTest::addRow("%d", flags) << flags;
    }
}

void TestReceivedFrame::whatIsBuiltComesBack()
{
    QFETCH(int, flags);
    const FrameLayout layout = layoutWith((flags & 1) != 0, (flags & 2) != 0, (flags & 4) != 0);
    const QByteArray payload = QByteArray::fromHex("42000001FF5AA5");
    const ReceivedFrame frame = takenApart(frameOfPayload(payload, layout), layout, 0);
    QCOMPARE(frame.payload, payload);
    QVERIFY(frame.crc == (layout.withCrc ? ReceivedFrame::Crc::Good : ReceivedFrame::Crc::None));
}

QTEST_APPLESS_MAIN(TestReceivedFrame)

#include "tst_receivedframe.moc"

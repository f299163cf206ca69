#include "frames/framebuilder.h"
#include "hexbytes.h"
#include "simulator/deviceparser.h"

#include <QRandomGenerator>
#include <QtTest>

namespace {

constexpr StartBytes header{0x5A, 0xA5};

QVector<QByteArray> payloads(std::initializer_list<const char *> texts)
{
    QVector<QByteArray> result;
    for (const char *text : texts) {
        result.append(hex(text));
    }
    return result;
}

QByteArray frameOf(const QByteArray &payload, bool withCrc = false)
{
    FrameLayout layout;
    layout.startBytes = header;
    layout.withCrc = withCrc;
    return frameOfPayload(payload, layout);
}

} // namespace

class TestDeviceParser : public QObject
{
    Q_OBJECT

private slots:
    void findsFrames_data();
    void findsFrames();
    void findsFramesByteByByte_data() { findsFrames_data(); }
    void findsFramesByteByByte();
    void findsRandomFramesInRandomPieces_data();
    void findsRandomFramesInRandomPieces();
    void equalStartBytesMayFollowThemselves();
    void givesUpAFrameThatNeverEnds();
    void givingUpWithNothingWaiting();
    void keepsNoRubbish();
    void understandsTheLongestFrame();
};

void TestDeviceParser::findsFrames_data()
{
    QTest::addColumn<bool>("withCrc");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QVector<QByteArray>>("expected");

    const auto row = [](const char *name, bool withCrc, const char *bytes,
                        std::initializer_list<const char *> expected) {
        QTest::newRow(name) << withCrc << hex(bytes) << payloads(expected);
    };
    row("nothing", false, "", {});
    row("one frame", false, "5AA5 03 420102", {"420102"});
    row("shortest frame", false, "5AA5 01 42", {"42"});
    row("two frames", false, "5AA5 01 42 5AA5 02 4243", {"42", "4243"});
    row("payload that holds a header", false, "5AA5 05 42 5AA501 42", {"425AA50142"});
    row("rubbish all around", false, "0102 5AA5 01 42 A5 5AA5 01 43 5AFF", {"42", "43"});
    row("first start byte twice", false, "5A 5AA5 01 42", {"42"});
    row("incomplete frame", false, "5AA5 03 4201", {});
    row("another header", false, "A55A 01 42", {});
    row("good CRC", true, "5AA5 08 010300000001840A", {"010300000001"});
    row("wrong CRC", true, "5AA5 08 010300000001850A", {});
    row("CRC bytes the other way round", true, "5AA5 08 0103000000010A84", {});
    row("wrong CRC, then a good one", true, "5AA5 03 42FFFF 5AA5 08 010300000001840A",
        {"010300000001"});
    row("a good frame within a wrong one", true, "5AA5 0C 42 5AA5 08 010300000001840A FF",
        {"010300000001"});
    row("too short for a CRC", true, "5AA5 02 FFFF 5AA5 08 010300000001840A", {"010300000001"});
    row("CRC is payload where there is none", false, "5AA5 08 010300000001840A",
        {"010300000001840A"});
    row("long form of a short length", false, "5AA5 0000FF 10 5AA5 01 42", {"42"});
    row("long form of another command", false, "5AA5 000100 11 5AA5 01 42", {"42"});
    const QByteArray longPayload = QByteArray(1, '\x10') + QByteArray(299, '\x5A');
    for (const bool withCrc : {false, true}) {
        QTest::newRow(withCrc ? "long form with CRC" : "long form")
            << withCrc << frameOf(longPayload, withCrc) << QVector<QByteArray>{longPayload};
    }
}

void TestDeviceParser::findsFrames()
{
    QFETCH(bool, withCrc);
    QFETCH(QByteArray, bytes);
    QFETCH(QVector<QByteArray>, expected);
    QCOMPARE(DeviceParser(header, withCrc).take(bytes), expected);
}

void TestDeviceParser::findsFramesByteByByte()
{
    QFETCH(bool, withCrc);
    QFETCH(QByteArray, bytes);
    QFETCH(QVector<QByteArray>, expected);
    DeviceParser parser(header, withCrc);
    QVector<QByteArray> found;
    for (const char byte : bytes) {
        found += parser.take(QByteArray(1, byte));
    }
    QCOMPARE(found, expected);
}

void TestDeviceParser::findsRandomFramesInRandomPieces_data()
{
    QTest::addColumn<bool>("withCrc");
    QTest::newRow("without CRC") << false;
    QTest::newRow("with CRC") << true;
}

void TestDeviceParser::findsRandomFramesInRandomPieces()
{
    QFETCH(bool, withCrc);
    QRandomGenerator random(7);
    QVector<QByteArray> sent;
    QByteArray stream;
    for (int i = 0; i < 500; ++i) {
        QByteArray payload(random.bounded(1, 254), '\0');
        for (char &byte : payload) {
            byte = static_cast<char>(random.bounded(256));
        }
        sent.append(payload);
        stream += QByteArray(random.bounded(4), '\x11') + frameOf(payload, withCrc);
    }
    DeviceParser parser(header, withCrc);
    QVector<QByteArray> found;
    while (!stream.isEmpty()) {
        const int size = random.bounded(1, 700);
        found += parser.take(stream.left(size));
        stream.remove(0, size);
    }
    QCOMPARE(found, sent);
    QCOMPARE(parser.waitingBytes(), 0);
}

void TestDeviceParser::equalStartBytesMayFollowThemselves()
{
    DeviceParser parser(StartBytes{0x02, 0x02}, true);
    FrameLayout layout;
    layout.startBytes = {0x02, 0x02};
    layout.withCrc = true;
    const QByteArray payload = hex("420102");
    QCOMPARE(parser.take(hex("02") + frameOfPayload(payload, layout)),
             QVector<QByteArray>{payload});
}

void TestDeviceParser::givesUpAFrameThatNeverEnds()
{
    DeviceParser parser(header, false);
    QCOMPARE(parser.take(hex("5AA5 FF 01 5AA5 01 42 5AA5 02 43")), QVector<QByteArray>());
    QCOMPARE(parser.giveUpFrame(), payloads({"42"}));
    QCOMPARE(parser.waitingBytes(), 4);
    QCOMPARE(parser.giveUpFrame(), QVector<QByteArray>());
    QCOMPARE(parser.waitingBytes(), 0);
    QCOMPARE(parser.take(hex("5AA5 01 44")), payloads({"44"}));
}

void TestDeviceParser::givingUpWithNothingWaiting()
{
    DeviceParser parser(header, false);
    QCOMPARE(parser.giveUpFrame(), QVector<QByteArray>());
    QCOMPARE(parser.take(hex("5AA5 01 44")), payloads({"44"}));
}

void TestDeviceParser::keepsNoRubbish()
{
    DeviceParser parser(header, false);
    QCOMPARE(parser.take(QByteArray(100000, '\x11')), QVector<QByteArray>());
    QCOMPARE(parser.waitingBytes(), 0);
    parser.take(QByteArray(100000, '\x5A'));
    QCOMPARE(parser.waitingBytes(), 1);
}

void TestDeviceParser::understandsTheLongestFrame()
{
    const QByteArray payload(0xFFFF, '\x10');
    DeviceParser parser(header, false);
    QCOMPARE(parser.take(frameOf(payload)), QVector<QByteArray>{payload});
}

QTEST_APPLESS_MAIN(TestDeviceParser)
#include "tst_deviceparser.moc"

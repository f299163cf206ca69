#include "devicetalk.h"
#include "simulator/deviceparser.h"

#include <QElapsedTimer>
#include <QtTest>

class TestDeviceReplies : public QObject
{
    Q_OBJECT

private slots:
    void answersRequests_data();
    void answersRequests();
    void recoversWhenTheLineGoesQuiet();
    void understandsTheLongForm();
    void garbageComesBeforeEachNthFrame();
    void piecesArriveInOrder();
    void staysMuteButForItsStatus();
    void delaysReplies();
};

void TestDeviceReplies::answersRequests_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<QByteArray>("expected");

    const auto row = [](const char *name, const QStringList &options, const char *request,
                        const char *expected) {
        QTest::newRow(name) << options << hex(request) << hex(expected);
    };
    row("read", {}, "5AA5 05 0300100002", "5AA5 07 03000200100011");
    row("write, then read", {}, "5AA5 05 100010ABCD 5AA5 05 0300100001",
        "5AA5 05 1000100001 5AA5 05 030001ABCD");
    row("echo", {}, "5AA5 04 42010203", "5AA5 04 42010203");
    row("unknown", {}, "5AA5 01 07", "5AA5 02 8701");
    row("bytes of terminal control", {}, "5AA5 07 42030A0D111304", "5AA5 07 42030A0D111304");
    row("behind rubbish", {}, "0D0A A5 5A 5AA5 02 4201", "5AA5 02 4201");
    row("CRC", {"--crc"}, "5AA5 07 0300000001 A1C0", "5AA5 07 0300010000 31C0");
    row("wrong CRC, then a good one", {"--crc"}, "5AA5 03 42FFFF 5AA5 03 423F71", "5AA5 03 423F71");
    row("header", {"--header", "12,34"}, "5AA5 02 4201 1234 02 4202", "1234 02 4202");
}

void TestDeviceReplies::answersRequests()
{
    QFETCH(QStringList, options);
    QFETCH(QByteArray, request);
    QFETCH(QByteArray, expected);
    RunningDevice device;
    QVERIFY(device.start(options));
    const QByteArray reply = ask(device, request, expected.size()) + device.readUntilQuiet();
    QCOMPARE(reply.toHex(' '), expected.toHex(' '));
}

void TestDeviceReplies::recoversWhenTheLineGoesQuiet()
{
    RunningDevice device;
    QVERIFY(device.start());
    const QByteArray request = hex("5AA5 02 4201");
    QCOMPARE(ask(device, hex("5AA5 FF") + request, request.size()), request);
    QCOMPARE(ask(device, request, request.size()), request);
}

void TestDeviceReplies::understandsTheLongForm()
{
    RunningDevice device;
    QVERIFY(device.start());
    const QByteArray request = frame(hex("10 0000") + QByteArray(30000, '\x21'));
    QCOMPARE(request.mid(2, 3), hex("007533"));
    QCOMPARE(ask(device, request, 8), frame(hex("10 0000 3A98")));
}

void TestDeviceReplies::garbageComesBeforeEachNthFrame()
{
    RunningDevice device;
    QVERIFY(device.start({"--garbage", "3", "--seed", "9"}));
    const QByteArray reply = frame("B");
    int withGarbage = 0;
    for (int i = 1; i <= 30; ++i) {
        device.write(frame("B"));
        QByteArray bytes = device.read(reply.size());
        while (!bytes.contains(reply)) {
            const QByteArray more = device.read(1);
            QVERIFY(!more.isEmpty());
            bytes += more;
        }
        QVERIFY(bytes.endsWith(reply));
        QCOMPARE(bytes.size() > reply.size(), i % 3 == 0);
        withGarbage += bytes.size() > reply.size() ? 1 : 0;
    }
    QCOMPARE(withGarbage, 10);
}

void TestDeviceReplies::piecesArriveInOrder()
{
    RunningDevice device;
    QVERIFY(device.start({"--split", "--chatter", "300"}));
    QByteArray requests;
    QVector<QByteArray> sent;
    for (char i = 0; i < 40; ++i) {
        sent.append(QByteArray("B") + QByteArray(20, i));
        requests += frame(sent.last());
    }
    device.write(requests);
    QVector<QByteArray> echoes;
    DeviceParser parser(defaultHeader, false);
    while (echoes.size() < sent.size()) {
        const QByteArray bytes = device.read(1);
        QVERIFY(!bytes.isEmpty());
        for (const QByteArray &payload : parser.take(bytes)) {
            if (!isStatus(payload)) {
                echoes.append(payload);
            }
        }
    }
    QCOMPARE(echoes, sent);
}

void TestDeviceReplies::staysMuteButForItsStatus()
{
    RunningDevice device;
    QVERIFY(device.start({"--mute", "--chatter", "200"}));
    device.write(frame("B") + frame(hex("0300000001")));
    const QVector<QByteArray> payloads = readPayloads(device, 40);
    QVERIFY(payloads.size() >= 40);
    for (const QByteArray &payload : payloads) {
        QVERIFY(isStatus(payload));
    }
}

void TestDeviceReplies::delaysReplies()
{
    RunningDevice device;
    QVERIFY(device.start({"--delay", "200"}));
    QElapsedTimer clock;
    clock.start();
    device.write(frame("B1") + frame("B2"));
    QCOMPARE(device.read(10), frame("B1") + frame("B2"));
    QVERIFY(clock.elapsed() >= 199);
}

QTEST_GUILESS_MAIN(TestDeviceReplies)
#include "tst_devicereplies.moc"

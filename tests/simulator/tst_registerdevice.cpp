#include "hexbytes.h"
#include "simulator/registerdevice.h"

#include <QtTest>

class TestRegisterDevice : public QObject
{
    Q_OBJECT

private slots:
    void replies_data();
    void replies();
    void readsWhatWasWritten();
    void failedWriteChangesNothing();
    void longestReadFitsAFrame_data();
    void longestReadFitsAFrame();
    void longWriteIsAcknowledged();
    void emptyRequestHasNoReply();
};

namespace {

constexpr int longest = 255;

} // namespace

void TestRegisterDevice::replies_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<QByteArray>("expected");

    const auto row = [](const char *name, const char *request, const char *expected) {
        QTest::newRow(name) << hex(request) << hex(expected);
    };
    row("read one", "03 0010 0001", "03 0001 0010");
    row("read three", "03 1233 0003", "03 0003 1233 1234 1235");
    row("read the last", "03 FFFF 0001", "03 0001 FFFF");
    row("read past the last", "03 FFFF 0002", "83 02");
    row("read none", "03 0010 0000", "83 03");
    row("read too many", "03 0000 007F", "83 03");
    row("read very many", "03 0000 FFFF", "83 03");
    row("read without a count", "03 0010", "83 03");
    row("read with too much", "03 0010 0001 00", "83 03");
    row("read without an address", "03", "83 03");
    row("write one", "10 0010 ABCD", "10 0010 0001");
    row("write two", "10 0010 ABCD 1234", "10 0010 0002");
    row("write the last", "10 FFFF ABCD", "10 FFFF 0001");
    row("write past the last", "10 FFFF ABCD 1234", "90 02");
    row("write half a register", "10 0010 AB", "90 03");
    row("write one and a half", "10 0010 ABCD 12", "90 03");
    row("write nothing", "10 0010", "90 03");
    row("write without an address", "10", "90 03");
    row("write with half an address", "10 00", "90 03");
    row("echo", "42 010203", "42 010203");
    row("echo of the command alone", "42", "42");
    row("unknown command", "04 0010 0001", "84 01");
    row("unknown command zero", "00", "80 01");
    row("unknown command with bit 7", "C3 01", "C3 01");
}

void TestRegisterDevice::replies()
{
    QFETCH(QByteArray, request);
    QFETCH(QByteArray, expected);
    QCOMPARE(RegisterDevice(longest).reply(request).toHex(), expected.toHex());
}

void TestRegisterDevice::readsWhatWasWritten()
{
    RegisterDevice device(longest);
    device.reply(hex("10 0011 ABCD 1234"));
    QCOMPARE(device.reply(hex("03 0010 0004")), hex("03 0004 0010 ABCD 1234 0013"));
}

void TestRegisterDevice::failedWriteChangesNothing()
{
    RegisterDevice device(longest);
    device.reply(hex("10 FFFE AAAA BBBB CCCC"));
    device.reply(hex("10 0010 AAAA BB"));
    QCOMPARE(device.reply(hex("03 FFFE 0002")), hex("03 0002 FFFE FFFF"));
    QCOMPARE(device.reply(hex("03 0010 0001")), hex("03 0001 0010"));
}

void TestRegisterDevice::longestReadFitsAFrame_data()
{
    QTest::addColumn<int>("longestReply");
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<int>("replySize");

    QTest::newRow("most without CRC") << 255 << hex("03 0000 007E") << 255;
    QTest::newRow("one more without CRC") << 255 << hex("03 0000 007F") << 2;
    QTest::newRow("most with CRC") << 253 << hex("03 0000 007D") << 253;
    QTest::newRow("one more with CRC") << 253 << hex("03 0000 007E") << 2;
    QTest::newRow("longest echo") << 253 << QByteArray(253, '\x42') << 253;
    QTest::newRow("echo too long") << 253 << QByteArray(254, '\x42') << 2;
}

void TestRegisterDevice::longestReadFitsAFrame()
{
    QFETCH(int, longestReply);
    QFETCH(QByteArray, request);
    QFETCH(int, replySize);
    const QByteArray reply = RegisterDevice(longestReply).reply(request);
    QCOMPARE(reply.size(), replySize);
    QCOMPARE(static_cast<quint8>(reply.front()) >= 0x80, replySize == 2);
}

void TestRegisterDevice::longWriteIsAcknowledged()
{
    RegisterDevice device(longest);
    QCOMPARE(device.reply(hex("10 0001") + QByteArray(65532, '\x77')), hex("10 0001 7FFE"));
    QCOMPARE(device.reply(hex("03 7FFD 0003")), hex("03 0003 7777 7777 7FFF"));
}

void TestRegisterDevice::emptyRequestHasNoReply()
{
    QCOMPARE(RegisterDevice(longest).reply({}), QByteArray());
}

QTEST_APPLESS_MAIN(TestRegisterDevice)
#include "tst_registerdevice.moc"

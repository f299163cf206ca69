#include "devicetalk.h"

#include <QFile>
#include <QtTest>

#include <fcntl.h>
#include <sys/ioctl.h>

class TestDeviceListeners : public QObject
{
    Q_OBJECT

private slots:
    void statusFramesHaveNoGaps();
    void sendsNoStatusWhileNobodyListens();
    void keepsNothingForTheNextListener();
    void portIsFreeAfterAListenerThatDied();
    void dropsWholeFramesWhenNobodyReads();
    void restsWhileIdle_data();
    void restsWhileIdle();
};

namespace {

/// Waits until another device has sent so many status frames, a thousand of them a second.
bool statusesComeElsewhere(int count)
{
    RunningDevice other;
    return other.start({"--chatter", "1000"}) && readPayloads(other, count).size() >= count;
}

} // namespace

void TestDeviceListeners::statusFramesHaveNoGaps()
{
    RunningDevice device;
    QVERIFY(device.start({"--chatter", "500", "--garbage", "2"}));
    const QVector<QByteArray> statuses = readPayloads(device, 300);
    QVERIFY(statuses.size() >= 300);
    for (int i = 0; i < statuses.size(); ++i) {
        QVERIFY(isStatus(statuses.at(i)));
        QCOMPARE(counterOf(statuses.at(i)), static_cast<quint32>(i));
    }
}

void TestDeviceListeners::sendsNoStatusWhileNobodyListens()
{
    RunningDevice device;
    QVERIFY(device.start({"--chatter", "1000"}));
    const QVector<QByteArray> heard = readPayloads(device, 100);
    QVERIFY(heard.size() >= 100);
    device.closePort();
    QVERIFY(statusesComeElsewhere(1500));
    QVERIFY(device.openPort());
    const QVector<QByteArray> statuses = readPayloads(device, 100);
    QVERIFY(statuses.size() >= 100);
    // What was sent but not read before the port was closed is lost; the silence is not counted.
    quint32 next = counterOf(statuses.first());
    QVERIFY(next > counterOf(heard.last()));
    QVERIFY(next <= counterOf(heard.last()) + 1000);
    for (const QByteArray &status : statuses) {
        QCOMPARE(counterOf(status), next++);
    }
}

void TestDeviceListeners::keepsNothingForTheNextListener()
{
    RunningDevice device;
    QVERIFY(device.start());
    device.write(frame("B1"));
    QVERIFY(device.waitForBytes());
    const auto unreadOnceOpenedAgain = [&device] {
        device.closePort();
        return device.openPort() ? device.unreadBytes() : -1;
    };
    QTRY_COMPARE(unreadOnceOpenedAgain(), 0);
    QCOMPARE(ask(device, frame("B3"), 5), frame("B3"));
}

void TestDeviceListeners::portIsFreeAfterAListenerThatDied()
{
    RunningDevice device;
    QVERIFY(device.startOnly());
    {
        const FileDescriptor port(
            ::open(QFile::encodeName(device.printedPath()).constData(), O_RDWR | O_NOCTTY));
        QVERIFY(port.isValid());
        QCOMPARE(::ioctl(port.get(), TIOCEXCL), 0);
    }
    // Opening works for a privileged user in any case, so the mark itself is looked at.
    QVERIFY(device.openPort());
    QTRY_VERIFY(!device.isPortExclusive());
}

void TestDeviceListeners::dropsWholeFramesWhenNobodyReads()
{
    RunningDevice device;
    QVERIFY(device.start());
    const QByteArray requests = frame(QByteArray(250, 'B')).repeated(400);
    for (int i = 0; i < 100; ++i) {
        device.write(requests);
    }
    const QByteArray backlog = device.readUntilQuiet(300);
    QVERIFY(!backlog.isEmpty());
    QVERIFY(backlog.size() < 100 * requests.size());
    QCOMPARE(backlog, frame(QByteArray(250, 'B')).repeated(backlog.size() / 253));
    QCOMPARE(ask(device, frame("B"), 4), frame("B"));
}

void TestDeviceListeners::restsWhileIdle_data()
{
    QTest::addColumn<bool>("isOpen");
    QTest::newRow("port open") << true;
    QTest::newRow("port closed again") << false;
}

void TestDeviceListeners::restsWhileIdle()
{
    QFETCH(bool, isOpen);
    RunningDevice device;
    QVERIFY(device.start({"--delay", "1", "--split"}));
    QCOMPARE(ask(device, frame("B"), 4), frame("B"));
    if (!isOpen) {
        device.closePort();
    }
    const qint64 before = device.processorTicks();
    QVERIFY(before >= 0);
    // A busy loop would use up nearly all of the second that this takes.
    QVERIFY(statusesComeElsewhere(1000));
    QVERIFY(device.processorTicks() - before <= 5);
}

QTEST_GUILESS_MAIN(TestDeviceListeners)
#include "tst_devicelisteners.moc"

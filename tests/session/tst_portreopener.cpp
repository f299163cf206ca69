#include "handclock.h"
#include "session/portreopener.h"
#include "testport.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>

class TestPortReopener : public QObject
{
    Q_OBJECT

private slots:
    void itIsOffAtFirst();
    void aLostPortIsOpenedWhenItIsBack();
    void nothingIsTriedBeforeItIsBack();
    void anotherPortIsNotTheLostOne();
    void aPortMayComeUnseen();
    void aPortThatDidNotComeUnseenIsNotTold();
    void aPortThatRefusesIsTriedAgain();
    void itIsNotTriedForEver();
    void aPortThatWasClosedStaysClosed();
    void whoDecidesOtherwiseGetsThat_data();
    void whoDecidesOtherwiseGetsThat();
    void whoDecidesNothingElseStillWaits_data();
    void whoDecidesNothingElseStillWaits();
    void itMayBeBackBeforeItsLossIsTold();
    void newsOfLongAgoIsNone();
    void eachLossIsFollowed();
};

namespace {

/// A port that is opened by a name of its own, which comes and goes.
class ReopenBench
{
public:
    ReopenBench()
    {
        settings.portName = folder.filePath("port");
        settings.baudRate = 19200;
        plugIn();
        link.open(settings);
        reopener.setOn(true);
    }

    void plugIn() { QFile::link(port.path(), settings.portName); }

    /// The device is gone, and the port was closed.
    void lose()
    {
        QFile::remove(settings.portName);
        link.close();
        reopener.noteLoss();
    }

    void comeBack()
    {
        plugIn();
        reopener.noteArrival(settings.portName);
        clock->advance(0);
    }

    TestPort port;
    TestPort otherPort;
    QTemporaryDir folder;
    SerialSettings settings;
    SerialLink link{4096};
    HandClock *clock = new HandClock;
    PortReopener reopener{link, std::unique_ptr<AlarmClock>(clock)};
    QSignalSpy waiting{&reopener, &PortReopener::waiting};
    QSignalSpy reopened{&reopener, &PortReopener::reopened};
    QSignalSpy refused{&reopener, &PortReopener::refused};
    QSignalSpy forgotten{&reopener, &PortReopener::forgotten};
};

constexpr int aWhileMs = 60000;

using Decision = std::function<void(ReopenBench &)>;

} // namespace

Q_DECLARE_METATYPE(Decision)

void TestPortReopener::itIsOffAtFirst()
{
    SerialLink link(4096);
    auto *clock = new HandClock;
    PortReopener reopener(link, std::unique_ptr<AlarmClock>(clock));
    const TestPort port;
    SerialSettings settings;
    settings.portName = port.path();
    QVERIFY(link.open(settings));
    link.close();
    reopener.noteLoss();
    QVERIFY(!reopener.isWaiting());
    reopener.noteArrival(port.path());
    clock->advance(aWhileMs);
    QVERIFY(!link.isOpen());
}

void TestPortReopener::aLostPortIsOpenedWhenItIsBack()
{
    ReopenBench bench;
    QVERIFY(bench.link.isOpen());
    bench.lose();
    QVERIFY(bench.reopener.isWaiting());
    QCOMPARE(bench.waiting, (QList<QVariantList>{{bench.settings.portName}}));
    bench.comeBack();
    QCOMPARE(bench.link.openPortName(), bench.settings.portName);
    QCOMPARE(bench.link.settings().baudRate, 19200);
    QCOMPARE(bench.reopened, (QList<QVariantList>{{bench.settings.portName}}));
    QVERIFY(!bench.reopener.isWaiting());
}

void TestPortReopener::nothingIsTriedBeforeItIsBack()
{
    ReopenBench bench;
    bench.lose();
    bench.plugIn();
    bench.clock->advance(aWhileMs);
    QVERIFY(!bench.link.isOpen());
    QVERIFY(bench.refused.isEmpty());
    QVERIFY(bench.reopener.isWaiting());
}

void TestPortReopener::anotherPortIsNotTheLostOne()
{
    ReopenBench bench;
    bench.lose();
    bench.plugIn();
    bench.reopener.noteArrival(bench.otherPort.path());
    bench.clock->advance(aWhileMs);
    QVERIFY(!bench.link.isOpen());
}

void TestPortReopener::aPortMayComeUnseen()
{
    ReopenBench bench;
    bench.lose();
    bench.plugIn();
    bench.reopener.noteArrival({});
    bench.clock->advance(0);
    QVERIFY(bench.link.isOpen());
}

void TestPortReopener::aPortThatDidNotComeUnseenIsNotTold()
{
    ReopenBench bench;
    bench.lose();
    bench.reopener.noteArrival({});
    bench.reopener.noteArrival(bench.otherPort.path());
    bench.clock->advance(aWhileMs);
    QVERIFY(bench.refused.isEmpty());
    QVERIFY(bench.reopener.isWaiting());
}

void TestPortReopener::aPortThatRefusesIsTriedAgain()
{
    ReopenBench bench;
    bench.lose();
    bench.reopener.noteArrival(bench.settings.portName);
    bench.clock->advance(PortReopener::longestTryMs - 2 * PortReopener::retryMs);
    QVERIFY(!bench.link.isOpen());
    bench.plugIn();
    bench.clock->advance(PortReopener::retryMs);
    QVERIFY(bench.link.isOpen());
    QVERIFY(bench.refused.isEmpty());
}

void TestPortReopener::itIsNotTriedForEver()
{
    ReopenBench bench;
    bench.lose();
    bench.reopener.noteArrival(bench.settings.portName);
    // Something else has changed, too.
    bench.reopener.noteArrival({});
    bench.clock->advance(PortReopener::longestTryMs);
    QCOMPARE(bench.refused, (QList<QVariantList>{{bench.settings.portName}}));
    QVERIFY(!bench.link.failure().words.isEmpty());
    bench.plugIn();
    bench.clock->advance(aWhileMs);
    QVERIFY(!bench.link.isOpen());
    QCOMPARE(bench.refused.size(), 1);

    bench.comeBack();
    QVERIFY(bench.link.isOpen());
}

void TestPortReopener::aPortThatWasClosedStaysClosed()
{
    ReopenBench bench;
    bench.link.close();
    bench.comeBack();
    bench.clock->advance(aWhileMs);
    QVERIFY(!bench.link.isOpen());
    QVERIFY(bench.waiting.isEmpty());
}

void TestPortReopener::whoDecidesOtherwiseGetsThat_data()
{
    QTest::addColumn<Decision>("decide");

    const auto row = [](const char *name, const Decision &decide) {
        QTest::newRow(name) << decide;
    };
    row("another port", [](ReopenBench &b) { b.reopener.notePort(b.otherPort.path()); });
    row("another rate", [](ReopenBench &b) {
        b.settings.baudRate = 9600;
        b.reopener.noteLine(b.settings);
    });
    row("other data bits", [](ReopenBench &b) {
        b.settings.dataBits = QSerialPort::Data7;
        b.reopener.noteLine(b.settings);
    });
    row("another parity", [](ReopenBench &b) {
        b.settings.parity = QSerialPort::EvenParity;
        b.reopener.noteLine(b.settings);
    });
    row("other stop bits", [](ReopenBench &b) {
        b.settings.stopBits = QSerialPort::TwoStop;
        b.reopener.noteLine(b.settings);
    });
    row("switched off", [](ReopenBench &b) { b.reopener.setOn(false); });
    row("opened by hand", [](ReopenBench &b) {
        SerialSettings other;
        other.portName = b.otherPort.path();
        b.link.open(other);
        b.link.close();
    });
    row("forgotten", [](ReopenBench &b) { b.reopener.forget(); });
}

void TestPortReopener::whoDecidesOtherwiseGetsThat()
{
    QFETCH(Decision, decide);
    ReopenBench bench;
    bench.lose();
    // It is being tried already.
    bench.reopener.noteArrival(bench.settings.portName);
    bench.clock->advance(PortReopener::retryMs);
    decide(bench);
    QVERIFY(!bench.reopener.isWaiting());
    QCOMPARE(bench.forgotten.size(), 1);
    bench.comeBack();
    bench.clock->advance(aWhileMs);
    QVERIFY(!bench.link.isOpen());
    QVERIFY(bench.reopened.isEmpty());
    QVERIFY(bench.refused.isEmpty());
}

void TestPortReopener::whoDecidesNothingElseStillWaits_data()
{
    QTest::addColumn<Decision>("decide");

    const auto row = [](const char *name, const Decision &decide) {
        QTest::newRow(name) << decide;
    };
    row("the same port", [](ReopenBench &b) { b.reopener.notePort(b.settings.portName); });
    row("no port", [](ReopenBench &b) { b.reopener.notePort({}); });
    row("the same settings, whatever port is shown", [](ReopenBench &b) {
        SerialSettings same = b.settings;
        same.portName = b.otherPort.path();
        b.reopener.noteLine(same);
    });
    row("switched on again", [](ReopenBench &b) { b.reopener.setOn(true); });
}

void TestPortReopener::whoDecidesNothingElseStillWaits()
{
    QFETCH(Decision, decide);
    ReopenBench bench;
    bench.lose();
    decide(bench);
    bench.comeBack();
    QVERIFY(bench.link.isOpen());
}

void TestPortReopener::itMayBeBackBeforeItsLossIsTold()
{
    ReopenBench bench;
    bench.reopener.noteArrival({});
    bench.clock->advance(100);
    bench.link.close();
    bench.reopener.noteLoss();
    bench.clock->advance(0);
    QVERIFY(bench.link.isOpen());
}

void TestPortReopener::newsOfLongAgoIsNone()
{
    ReopenBench bench;
    bench.reopener.noteArrival(bench.settings.portName);
    bench.clock->advance(1000);
    bench.link.close();
    bench.reopener.noteLoss();
    bench.clock->advance(aWhileMs);
    QVERIFY(!bench.link.isOpen());
}

void TestPortReopener::eachLossIsFollowed()
{
    ReopenBench bench;
    for (int loss = 1; loss <= 3; ++loss) {
        bench.lose();
        bench.comeBack();
        QVERIFY(bench.link.isOpen());
        QCOMPARE(bench.reopened.size(), loss);
        bench.clock->advance(aWhileMs);
    }
}

QTEST_GUILESS_MAIN(TestPortReopener)
#include "tst_portreopener.moc"

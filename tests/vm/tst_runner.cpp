#include "emulatedhid.h"
#include "ranprogram.h"
#include "serialadapter.h"

#include <QtTest>

/// The test runner with devices of the system that come and go.
class TestRunner : public QObject
{
    Q_OBJECT

private slots:
    void hidRowsAreAnswered_data();
    void hidRowsAreAnswered();
    void hidIsWaitedFor();
    void hidIsPulledOut();
    void hidIsNotPermitted();
    void adapterIsWaitedForAndPulledOut();
};

namespace {

constexpr int runnerPatienceMs = 60000;

const QByteArray runnerEcho("//@ tarnwick-run 1\nEcho,select,42 0000 01\n//? 42 0000 01\n");

/// Its second frame never comes, so that nothing is written meanwhile.
const QByteArray waitingEcho("//@ tarnwick-run 1\nEcho,select,42 0000 01\n//? 42 0000 01\n"
                             "//+ 55  within 3600000\n");

/// The program, with what it has to send on its standard input.
class StartedRunner : public QProcess
{
public:
    StartedRunner(const QStringList &arguments, const QByteArray &list)
    {
        start(TARNWICK_RUN, arguments + QStringList{"-"});
        write(list);
        closeWriteChannel();
    }

    bool hasPrinted(const QByteArray &text)
    {
        while (!peek(bytesAvailable()).contains(text)) {
            if (!waitForReadyRead(runnerPatienceMs)) {
                return false;
            }
        }
        return true;
    }

    Ran end()
    {
        waitForFinished(runnerPatienceMs);
        return endOf(*this);
    }
};

} // namespace

void TestRunner::hidRowsAreAnswered_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<int>("reportSize");
    QTest::newRow("64 bytes") << "1616" << 64;
    QTest::newRow("512 bytes") << "2929" << 512;
}

void TestRunner::hidRowsAreAnswered()
{
    QFETCH(QString, product);
    QFETCH(int, reportSize);
    EmulatedHid device(product, reportSize);
    QVERIFY(device.plugIn());
    StartedRunner runner({"--hid", "EEEF:" + product, "--strict", "-n", "20", "--wait-link", "20"},
                         runnerEcho);
    const Ran result = runner.end();
    QVERIFY2(result.code == 0, result.out + result.error);
    QVERIFY2(result.out.contains("20 rows, 20 sent, 20 replies, 0 failures"), result.out);
    // The device minds a report that has not its size.
    QVERIFY(device.pullOut());
}

void TestRunner::hidIsWaitedFor()
{
    EmulatedHid device("1616", 64);
    StartedRunner runner({"--hid", "EEEF:1616", "--wait-link", "60"}, runnerEcho);
    QVERIFY(runner.waitForStarted());
    QVERIFY(!runner.waitForFinished(500));
    QVERIFY(device.plugIn());
    const Ran result = runner.end();
    QVERIFY2(result.code == 0, result.out + result.error);
}

/// While it waits, nothing but the system tells that the device is gone.
void TestRunner::hidIsPulledOut()
{
    EmulatedHid device("1616", 64);
    QVERIFY(device.plugIn());
    StartedRunner runner({"--hid", "EEEF:1616", "--wait-link", "20", "-v"}, waitingEcho);
    QVERIFY(runner.hasPrinted("rx "));
    QVERIFY(device.pullOut());
    const Ran result = runner.end();
    QVERIFY2(result.code == 4, result.out + result.error);
    QVERIFY2(result.out.contains("LOST  001 Echo  the device is gone"), result.out);
}

void TestRunner::hidIsNotPermitted()
{
    EmulatedHid device("0001", 64);
    QVERIFY(device.plugIn());
    StartedRunner runner({"--hid", "EEEF:0001", "--wait-link", "2"}, runnerEcho);
    const Ran result = runner.end();
    QCOMPARE(result.code, 3);
    QVERIFY2(result.error.contains("Permission denied. A udev rule helps"), result.error);
}

void TestRunner::adapterIsWaitedForAndPulledOut()
{
    SerialAdapter adapter;
    StartedRunner runner({"--port", "ttyUSB0", "--wait-link", "60", "-v"}, waitingEcho);
    QVERIFY(adapter.plugIn());
    QVERIFY(runner.hasPrinted("rx "));
    QVERIFY(adapter.pullOut());
    const Ran result = runner.end();
    QVERIFY2(result.code == 4, result.out + result.error);
    QVERIFY2(result.out.contains("LOST  001 Echo  the device is gone"), result.out);
}

QTEST_GUILESS_MAIN(TestRunner)
#include "tst_runner.moc"

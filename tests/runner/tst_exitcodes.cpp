#include "ranprogram.h"
#include "runningdevice.h"

#include <QtTest>

#include <csignal>
#include <sys/types.h>

/// What the built program ends with. Each code is provoked.
class TestExitCodes : public QObject
{
    Q_OBJECT

private slots:
    void good();
    void expectationFailed_data();
    void expectationFailed();
    void badCrc();
    void wrongInput_data();
    void wrongInput();
    void nothingIsSentWhereAFileIsWrong();
    void linkNotOpened();
    void waitedForInVain();
    void waitedFor();
    void linkLost();
    void nothingToDo();
    void reportNotWritten();
    void outputNotWritten();
    void timedOut();
    void told_data();
    void told();
};

namespace {

const QByteArray endless("//@ tarnwick-run 1 interval=20\nEcho,select,42 0000 01\n//? 42 **\n");

/// Starts the runner on a list that doesn't end, and waits until it is at work.
bool startEndless(QProcess &process, const QStringList &arguments)
{
    process.start(TARNWICK_RUN, arguments + QStringList{"-n", "forever"});
    QByteArray out;
    while (!out.contains("pass")) {
        if (!process.waitForReadyRead(10000)) {
            return false;
        }
        out += process.readAllStandardOutput();
    }
    return true;
}

} // namespace

void TestExitCodes::good()
{
    const ListFolder folder;
    const Ran result =
        ran({"--sim",
             folder.file("//@ tarnwick-run 1\nRead,select,03 0010 00 01\n//? 03 0001 0010\n")});
    QVERIFY2(result.code == 0, result.error);
    QVERIFY(result.out.contains("pass  001 Read"));
    QCOMPARE(result.error, QByteArray());
}

void TestExitCodes::expectationFailed_data()
{
    QTest::addColumn<QByteArray>("expected");
    QTest::addColumn<QByteArray>("told");

    QTest::newRow("other bytes") << QByteArray("//? 03 **\n")
                                 << QByteArray("expected 03 **, got 42 00 00 01");
    QTest::newRow("none in time") << QByteArray("//? 42 **\n//+ **  within 50\n")
                                  << QByteArray("expected **, got nothing within 50.0 ms");
    QTest::newRow("forbidden") << QByteArray("//! 4? **\n")
                               << QByteArray("4? ** is forbidden, got 42 00 00 01");
}

void TestExitCodes::expectationFailed()
{
    QFETCH(QByteArray, expected);
    QFETCH(QByteArray, told);
    const ListFolder folder;
    const Ran result =
        ran({"--sim", folder.file("//@ tarnwick-run 1\nEcho,select,42 0000 01\n" + expected)});
    QCOMPARE(result.code, 1);
    QVERIFY2(result.out.contains(told), result.out);
}

void TestExitCodes::badCrc()
{
    RunningDevice device;
    QVERIFY(device.startOnly());
    const ListFolder folder;
    // The device has no CRC, so neither has its error reply.
    const Ran result = ran({"--port", device.printedPath(), "--crc",
                            folder.file("//@ tarnwick-run 1\nBad,select,7F 0000 00\n//? **\n")});
    QCOMPARE(result.code, 1);
    QVERIFY2(result.out.contains("with a bad CRC"), result.out);
}

void TestExitCodes::wrongInput_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("told");

    const auto row = [](const char *name, const QStringList &arguments, const char *text,
                        const char *told) {
        QTest::newRow(name) << arguments << QByteArray(text) << QByteArray(told);
    };
    row("option", {"--sim", "--nonsense"}, "", "Unknown option 'nonsense'. See --help.");
    row("value", {"--sim", "-t", "soon"}, "", "--reply-timeout needs a number");
    row("line", {"--sim"}, "nonsense\n", "list.txt:1:1: this is neither a row nor a comment");
    row("expectation", {"--sim"}, "//@ tarnwick-run 1\nA,select,03 0010\n//? 03 0G\n",
        "list.txt:3:8: ");
    row("odd digits", {"--sim"}, "A,select,03 0010 1\n",
        "list.txt:1:1: row 1 holds no whole bytes");
    row("row", {"--sim", "--rows", "2"}, "A,select,03 0010\n", "--rows: there is no row 2, only 1");
}

void TestExitCodes::wrongInput()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, told);
    const ListFolder folder;
    const Ran result = ran(arguments + QStringList{folder.file(text)});
    QCOMPARE(result.code, 2);
    QVERIFY2(result.error.contains(told), result.error);
    QCOMPARE(result.out, QByteArray());
    QCOMPARE(ran({"--sim", folder.path("missing")}).code, 2);
}

void TestExitCodes::nothingIsSentWhereAFileIsWrong()
{
    RunningDevice device;
    QVERIFY(device.start());
    const ListFolder folder;
    const QString good = folder.file("Echo,select,42 0000 01\n", "good.txt");
    const QString bad = folder.file("nonsense\n", "bad.txt");
    QCOMPARE(ran({"--port", device.printedPath(), good, bad}).code, 2);
    QCOMPARE(device.readUntilQuiet(50), QByteArray());
}

void TestExitCodes::linkNotOpened()
{
    const ListFolder folder;
    const QString list = folder.file(endless);
    const Ran port = ran({"--port", folder.path("no-port"), list});
    QCOMPARE(port.code, 3);
    QVERIFY2(port.error.contains("no-port: No such file or directory"), port.error);
    const Ran hid = ran({"--hid", "FFFE:FFFE", list});
    QCOMPARE(hid.code, 3);
    QVERIFY2(hid.error.contains("No HID device VID_FFFE&PID_FFFE is attached."), hid.error);
}

void TestExitCodes::waitedForInVain()
{
    const ListFolder folder;
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(ran({"--wait-link", "1", "--port", folder.path("no-port"), folder.file(endless)}).code,
             3);
    QVERIFY(clock.elapsed() >= 1000);
}

void TestExitCodes::waitedFor()
{
    RunningDevice device;
    QVERIFY(device.startOnly());
    const ListFolder folder;
    QProcess process;
    process.start(TARNWICK_RUN, {"--wait-link", "60", "--port", folder.path("port"),
                                 folder.file("Echo,select,42 0000 01\n")});
    QVERIFY(process.waitForStarted());
    QVERIFY(!process.waitForFinished(300));
    QVERIFY(QFile::link(device.printedPath(), folder.path("port")));
    QCOMPARE(endOf(process).code, 0);
}

void TestExitCodes::linkLost()
{
    RunningDevice device;
    QVERIFY(device.startOnly());
    const ListFolder folder;
    QProcess process;
    QVERIFY(startEndless(process, {"--port", device.printedPath(), "--junit", folder.path("r.xml"),
                                   folder.file(endless)}));
    device.process().kill();
    const Ran result = endOf(process);
    QCOMPARE(result.code, 4);
    QVERIFY2(result.out.contains("LOST  001 Echo"), result.out);
    QFile report(folder.path("r.xml"));
    QVERIFY(report.open(QIODevice::ReadOnly));
    QVERIFY(report.readAll().contains("<error"));
}

void TestExitCodes::nothingToDo()
{
    const ListFolder folder;
    QCOMPARE(ran({"--sim", folder.file("A,unselect,03 0010\n")}).code, 5);
    QCOMPARE(ran({"--sim", folder.file("Pause,select,++ 10\n")}).code, 5);
    QCOMPARE(ran({"--sim", folder.file("// Nothing.\n")}).code, 5);
}

void TestExitCodes::reportNotWritten()
{
    const ListFolder folder;
    const Ran result =
        ran({"--sim", "--junit", folder.path("missing/r.xml"), folder.file(endless)});
    QCOMPARE(result.code, 6);
    QVERIFY(result.error.contains("missing/r.xml"));
    QCOMPARE(result.out, QByteArray());
}

void TestExitCodes::outputNotWritten()
{
    const ListFolder folder;
    QProcess process;
    process.setStandardOutputFile("/dev/full");
    process.start(TARNWICK_RUN, {"--sim", folder.file("Echo,select,42 0000 01\n")});
    QCOMPARE(endOf(process).code, 6);
}

void TestExitCodes::timedOut()
{
    const ListFolder folder;
    const Ran result =
        ran({"--sim", "-n", "forever", "--total-timeout", "1", folder.file(endless)});
    QCOMPARE(result.code, 124);
    QVERIFY(result.out.endsWith("the time was up\n"));
}

void TestExitCodes::told_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("told");

    QTest::newRow("SIGINT") << SIGINT << 130 << QByteArray("interrupted\n");
    QTest::newRow("SIGTERM") << SIGTERM << 143 << QByteArray("told to end\n");
}

void TestExitCodes::told()
{
    QFETCH(int, signal);
    QFETCH(QByteArray, told);
    const ListFolder folder;
    QProcess process;
    QVERIFY(
        startEndless(process, {"--sim", "--junit", folder.path("r.xml"), folder.file(endless)}));
    ::kill(static_cast<pid_t>(process.processId()), signal);
    const Ran result = endOf(process);
    QTEST(result.code, "code");
    QVERIFY2(result.out.endsWith(told), result.out);
    QVERIFY(QFile::exists(folder.path("r.xml")));
}

QTEST_GUILESS_MAIN(TestExitCodes)

#include "tst_exitcodes.moc"

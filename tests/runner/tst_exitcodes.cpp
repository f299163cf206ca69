#include "frames/hextext.h"
#include "ranprogram.h"
#include "restrictions.h"
#include "runningdevice.h"
#include "testport.h"

#include <QtTest>

#include <csignal>
#include <grp.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

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
    void portNotPermitted();
    void portInUse();
    void waitedForInVain();
    void waitedFor();
    void linkLost();
    void nothingToDo();
    void reportNotWritten();
    void outputNotWritten();
    void timedOut();
    void told_data();
    void told();
    void timedOutWhileItWaitsForTheLink();
    void toldWhileItWaitsForTheLink();
    void unexpectedIsAFailureWhereItIsStrict();
};

namespace {

const QByteArray endless("//@ tarnwick-run 1 interval=20\nEcho,select,42 0000 01\n//? 42 **\n");

/// Whether a process has a handler of its own for a signal.
bool minds(int signal, const QProcess &process)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(process.processId()));
    status.open(QIODevice::ReadOnly);
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("SigCgt:")) {
            return ((line.mid(7).trimmed().toULongLong(nullptr, hexBase) >> (signal - 1)) & 1) != 0;
        }
    }
    return false;
}

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

/// For root there is no such thing, so somebody else runs the program.
void TestExitCodes::portNotPermitted()
{
    const TestPort port;
    const PublicProgram program(TARNWICK_RUN);
    const group *const dialout = getgrnam("dialout");
    QVERIFY(dialout != nullptr);
    const QByteArray path = port.path().toLocal8Bit();
    const bool hasGroup = chown(path.constData(), uid_t(-1), dialout->gr_gid) == 0;
    QCOMPARE(chmod(path.constData(), 0060), 0);
    const OrdinaryUser user;
    QVERIFY(user.isInForce());
    const Ran result = ranOther(program.path(), {"--port", port.path(), "-"}, endless);
    QCOMPARE(result.code, 3);
    QVERIFY2(result.error.contains(path + ": Permission denied."), result.error);
    QVERIFY2(!hasGroup || result.error.contains("It belongs to the group dialout."), result.error);
}

void TestExitCodes::portInUse()
{
    const TestPort port;
    const PublicProgram program(TARNWICK_RUN);
    const ListFolder folder;
    QCOMPARE(chmod(qPrintable(port.path()), 0666), 0);
    const OrdinaryUser user;
    QVERIFY(user.isInForce());
    QProcess other;
    other.start(program.path(), {"--port", port.path(), "-n", "forever", "--interval", "20", "-"});
    other.write("Echo,select,42 0000 01\n");
    other.closeWriteChannel();
    QVERIFY(other.waitForReadyRead(10000));
    const Ran result = ranOther(program.path(), {"--port", port.path(), "-"}, endless);
    QCOMPARE(result.code, 3);
    QVERIFY2(result.error.contains(" is in use by another program ("), result.error);
    other.terminate();
    QCOMPARE(endOf(other).code, 143);
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

void TestExitCodes::timedOutWhileItWaitsForTheLink()
{
    const ListFolder folder;
    const Ran result = ran({"--port", folder.path("no-port"), "--wait-link", "60",
                            "--total-timeout", "1", folder.file(endless)});
    QCOMPARE(result.code, 124);
}

void TestExitCodes::toldWhileItWaitsForTheLink()
{
    const ListFolder folder;
    QProcess process;
    process.start(TARNWICK_RUN, {"--port", folder.path("no-port"), "--wait-link", "60", "--junit",
                                 folder.path("r.xml"), folder.file(endless)});
    QVERIFY(process.waitForStarted());
    QTRY_VERIFY(minds(SIGTERM, process));
    ::kill(static_cast<pid_t>(process.processId()), SIGTERM);
    QCOMPARE(endOf(process).code, 143);
    QVERIFY(folder.content("r.xml").contains("<testsuites>"));
}

void TestExitCodes::unexpectedIsAFailureWhereItIsStrict()
{
    const QByteArray list("//@ tarnwick-run 1\nEcho,select,42 0000 01\n//! 55  within 100\n");
    QCOMPARE(ran({"--sim", "-"}, list).code, 0);
    const Ran result = ran({"--sim", "--strict", "-"}, list);
    QCOMPARE(result.code, 1);
    QVERIFY2(result.out.contains("nothing more expected, got 42 00 00 01"), result.out);
}

QTEST_GUILESS_MAIN(TestExitCodes)

#include "tst_exitcodes.moc"

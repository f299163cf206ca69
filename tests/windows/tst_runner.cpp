#include "hexbytes.h"
#include "testfiles.h"
#include "testport.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/// The runner's program, seen from outside.
class TestRunner : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void tellsItsVersion();
    void checksTheExamples();
    void listsPorts();
    void sendsRows();
    void aPortThatIsNotThere();
    void linesInTheSystemsEncoding();
    void answersLinesAsTheyCome();
    void linesThatWaitForTheDeviceAreAllAnswered();
    void linesAreNotPiledUp();
    void endsWhileItsInputGoesOn();

private:
    struct Ran
    {
        int code = -1;
        QByteArray out;
        QByteArray error;
    };

    QString runner() const { return m_folder.filePath("tarnwick-run.exe"); }
    Ran run(const QStringList &arguments) const;

    QTemporaryDir m_folder;
};

void TestRunner::initTestCase()
{
    QVERIFY(QFile::copy(TARNWICK_RUN, runner()));
}

TestRunner::Ran TestRunner::run(const QStringList &arguments) const
{
    QProcess program;
    program.start(runner(), arguments);
    const int code = program.waitForFinished() ? program.exitCode() : -1;
    return {code, program.readAllStandardOutput(), program.readAllStandardError()};
}

void TestRunner::tellsItsVersion()
{
    const Ran result = run({"--version"});
    QCOMPARE(result.code, 0);
    QCOMPARE(result.out.trimmed(), QByteArray("tarnwick-run " TARNWICK_VERSION));
}

void TestRunner::checksTheExamples()
{
    const Ran result = run({"--check", inTree("examples/registers.txt")});
    QVERIFY2(result.code == 0, result.error);
    QVERIFY2(result.out.contains(" rows, "), result.out);
}

void TestRunner::listsPorts()
{
    const Ran result = run({"--list-ports"});
    QCOMPARE(result.code, 0);
    QVERIFY2(result.out.contains("COM3") && result.out.contains("COM4"), result.out);
}

void TestRunner::sendsRows()
{
    const QString list = m_folder.filePath("list.txt");
    writeFile(list,
              "One,select,42 0000 01\r\nTwo,unselect,42 0000 02\r\nThree,select,42 0000 03\r\n");
    TestPort port;
    const Ran result = run({"--port", port.path(), "--crc", list});
    QVERIFY2(result.code == 0, result.error);
    QTRY_COMPARE(port.received().toHex(' '),
                 run({"--dry-run", "--crc", list}).out.simplified().toLower());
}

void TestRunner::aPortThatIsNotThere()
{
    constexpr int linkNotOpened = 3;
    const Ran result = run({"--port", "COM200", inTree("examples/registers.txt")});
    QCOMPARE(result.code, linkNotOpened);
    QVERIFY2(result.error.contains("COM200"), result.error);
}

/// Which is GBK here; U+6D4B is B2 E2.
void TestRunner::linesInTheSystemsEncoding()
{
    const QString list = m_folder.filePath("gbk.txt");
    writeFile(list, "\xB2\xE2,select,42 0000 01\r\n");
    TestPort port;
    const Ran result = run({"--port", port.path(), list});
    QVERIFY2(result.out.contains("\xE6\xB5\x8B"), result.out);
}

/// No reply is seen under Wine.
void TestRunner::answersLinesAsTheyCome()
{
    TestPort port;
    QProcess program;
    program.start(runner(), {"--port", port.path(), "--pipe", "-t", "30"});
    for (const QByteArray number : {"1", "2"}) {
        program.write("Echo,42 0000 0" + number + '\n');
        QTRY_VERIFY(program.canReadLine());
        const QByteArray answer = program.readLine();
        QVERIFY2(answer.contains("\"row\":" + number + ','), answer);
        QVERIFY2(answer.contains(R"("verdict":"sent")"), answer);
    }
    QTRY_COMPARE(port.received(), hex("5AA50442000001 5AA50442000002"));
    program.closeWriteChannel();
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 0);
}

/// So many that reading stops meanwhile.
void TestRunner::linesThatWaitForTheDeviceAreAllAnswered()
{
    constexpr int lines = 1500;
    TestPort port;
    QProcess program;
    program.start(runner(), {"--port", port.path(), "--pipe", "-t", "1"});
    program.write(QByteArray("Echo,42 0000 01\n").repeated(lines));
    program.closeWriteChannel();
    QTRY_VERIFY_WITH_TIMEOUT((port.received(), program.state() == QProcess::NotRunning), 60000);
    QCOMPARE(program.exitCode(), 0);
    QCOMPARE(program.readAllStandardOutput().count('\n'), lines);
    QTRY_COMPARE(port.received().size(), lines * hex("5AA50442000001").size());
}

/// Whoever writes faster than the device answers waits, once the pipe is full, too.
void TestRunner::linesAreNotPiledUp()
{
    constexpr int most = 8 * 1024 * 1024;
    const QByteArray lines = QByteArray("Echo,42 0000 01\n").repeated(1000);
    QProcess program;
    program.start(runner(), {"--port", "COM200", "--pipe", "--wait-link", "3600"});
    QVERIFY(program.waitForStarted());
    int taken = 0;
    program.write(lines);
    while (taken < most && program.waitForBytesWritten(1000)) {
        taken += lines.size();
        program.write(lines);
    }
    QCOMPARE(program.state(), QProcess::Running);
    program.kill();
    program.waitForFinished();
    QVERIFY2(taken >= lines.size() && taken < most, qPrintable(QString::number(taken)));
}

/// With a read that waits for more.
void TestRunner::endsWhileItsInputGoesOn()
{
    constexpr int timedOut = 124;
    TestPort port;
    QProcess program;
    program.start(runner(), {"--port", port.path(), "--pipe", "--total-timeout", "1"});
    program.write("Echo,42 0000 01\n");
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), timedOut);
    QVERIFY(program.readAllStandardOutput().contains(R"("row":1,)"));
}

QTEST_GUILESS_MAIN(TestRunner)
#include "tst_runner.moc"

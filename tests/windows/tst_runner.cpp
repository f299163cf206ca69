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

private:
    struct Ran
    {
        int code = -1;
        QByteArray out;
        QByteArray error;
    };

    Ran run(const QStringList &arguments) const;

    QTemporaryDir m_folder;
};

void TestRunner::initTestCase()
{
    QVERIFY(QFile::copy(TARNWICK_RUN, m_folder.filePath("tarnwick-run.exe")));
}

TestRunner::Ran TestRunner::run(const QStringList &arguments) const
{
    QProcess program;
    program.start(m_folder.filePath("tarnwick-run.exe"), arguments);
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

QTEST_GUILESS_MAIN(TestRunner)
#include "tst_runner.moc"

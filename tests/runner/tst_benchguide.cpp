#include "markdown.h"
#include "ranprogram.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QtTest>

/// The examples in docs/guide/bench.md, as they stand there.
class TestBenchGuide : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void shell();
    void make();
    void pytest();
    void keywordsOfTheRobot_data();
    void keywordsOfTheRobot();
    void stepOfJenkins();
    void jobOfGitLab();
};

namespace {

/// The first example in that language.
QByteArray exampleIn(const QByteArray &language)
{
    return firstBlockIn(guidePageText("bench.md"), language);
}

/// The example in that language that holds the text.
QByteArray exampleWith(const QByteArray &text, const QByteArray &language)
{
    for (const MarkdownBlock &block : blocksIn(guidePageText("bench.md"))) {
        if (block.language == language && block.text.contains(text)) {
            return block.text;
        }
    }
    return {};
}

/// What stands between the quotes behind a word.
QString quotedBehind(const QString &word, const QByteArray &text)
{
    const QRegularExpression quoted("\\b" + word + " '([^']+)'");
    return quoted.match(QString::fromUtf8(text)).captured(1);
}

/// A checkout as a server has it.
class Checkout : public ListFolder
{
public:
    Checkout() { QFile::link(QStringLiteral(TARNWICK_TREE "/examples"), path("examples")); }

    Ran inShell(const QString &script) const
    {
        return ranOther("sh", {"-e", "-c", "cd '" + path(".") + "'\n" + script});
    }
};

} // namespace

/// The program is found by its name, and the examples are found in the tree.
void TestBenchGuide::initTestCase()
{
    const QString programs = QFileInfo(QStringLiteral(TARNWICK_RUN)).path();
    qputenv("PATH", programs.toLocal8Bit() + ':' + qgetenv("PATH"));
}

void TestBenchGuide::shell()
{
    const Checkout checkout;
    const Ran result = checkout.inShell(exampleIn("sh"));
    QVERIFY2(result.code == 0 && result.out.contains("0 failures"), result.out + result.error);
    QVERIFY(!result.out.contains("failed with"));
    QVERIFY(QFile::exists(checkout.path("report.xml")));
}

void TestBenchGuide::make()
{
    const Checkout checkout;
    checkout.file(exampleIn("make"), "Makefile");
    const Ran result = ranOther("make", {"-C", checkout.path("."), "check"});
    QVERIFY2(result.code == 0 && result.out.contains("0 failures"), result.out + result.error);
}

void TestBenchGuide::pytest()
{
    const ListFolder folder;
    const QString script = folder.file(exampleIn("python"), "test_example.py");
    const Ran result = ranOther("/usr/bin/python3", {"-m", "pytest", "-q", script});
    QVERIFY2(result.code == 0 && result.out.contains("2 passed"), result.out + result.error);
}

void TestBenchGuide::keywordsOfTheRobot_data()
{
    QTest::addColumn<QByteArray>("expected");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("told");

    QTest::newRow("as it stands") << QByteArray("03 0001 1234") << 0
                                  << QByteArray("pass The Device Echoes\n"
                                                "pass A Register Keeps Its Value\n");
    QTest::newRow("another reply") << QByteArray("03 0001 1235") << 1
                                   << QByteArray("fail A Register Keeps Its Value expected");
}

/// Debian 12 has no Robot Framework: a few lines of ours read the table and call the keywords.
void TestBenchGuide::keywordsOfTheRobot()
{
    QFETCH(QByteArray, expected);
    QFETCH(QByteArray, told);
    const ListFolder folder;
    folder.file(exampleWith("ROBOT_LIBRARY_SCOPE", "python"), "TarnwickDevice.py");
    const QByteArray table = exampleIn("robotframework").replace("03 0001 1234", expected);
    const Ran result = ranOther("/usr/bin/python3", {TARNWICK_TREE "/tests/runner/keywordtable.py",
                                                     folder.file(table, "example.robot")});
    QVERIFY2(result.out.contains(told), result.out + result.error);
    QTEST(result.code, "code");
}

void TestBenchGuide::stepOfJenkins()
{
    const Checkout checkout;
    const QByteArray stage = exampleIn("groovy");
    const Ran result = checkout.inShell(quotedBehind("sh", stage));
    QVERIFY2(result.code == 0 && result.out.contains("0 failures"), result.out + result.error);
    QVERIFY(QFileInfo(checkout.path(quotedBehind("junit", stage))).isFile());
}

/// What the server does with a job: it runs the script, a line or several, and takes the report.
void TestBenchGuide::jobOfGitLab()
{
    const Checkout checkout;
    const Ran read =
        ranOther("/usr/bin/python3",
                 {"-c", "import sys, yaml\n"
                        "job, = yaml.safe_load(sys.stdin).values()\n"
                        "script = job['script']\n"
                        "print(job['artifacts']['reports']['junit'])\n"
                        "print(script if isinstance(script, str) else '\\n'.join(script))\n"},
                 exampleIn("yaml"));
    QVERIFY2(read.code == 0, read.error);
    const QString report = QString::fromUtf8(read.out).section('\n', 0, 0);
    const Ran result = checkout.inShell(QString::fromUtf8(read.out).section('\n', 1));
    QVERIFY2(result.code == 0 && result.out.contains("0 failures"), result.out + result.error);
    QVERIFY(QFileInfo(checkout.path(report)).isFile());
}

QTEST_GUILESS_MAIN(TestBenchGuide)

#include "tst_benchguide.moc"

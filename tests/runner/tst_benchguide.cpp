#include "markdown.h"
#include "ranprogram.h"

#include <QFileInfo>
#include <QProcessEnvironment>
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
};

namespace {

/// The first example in that language.
QByteArray exampleIn(const QByteArray &language)
{
    return firstBlockIn(guidePageText("bench.md"), language);
}

} // namespace

/// The program is found by its name, and the examples are found in the tree.
void TestBenchGuide::initTestCase()
{
    const QString programs = QFileInfo(QStringLiteral(TARNWICK_RUN)).path();
    qputenv("PATH", programs.toLocal8Bit() + ':' + qgetenv("PATH"));
}

void TestBenchGuide::shell()
{
    const ListFolder folder;
    QVERIFY(QFile::link(TARNWICK_TREE "/examples", folder.path("examples")));
    const QString script =
        folder.file("cd \"$(dirname \"$0\")\"\n" + exampleIn("sh"), "example.sh");
    const Ran result = ranOther("sh", {script});
    QVERIFY2(result.code == 0 && result.out.contains("0 failures"), result.out + result.error);
    QVERIFY(!result.out.contains("failed with"));
    QVERIFY(QFile::exists(folder.path("report.xml")));
}

void TestBenchGuide::make()
{
    const ListFolder folder;
    QVERIFY(QFile::link(TARNWICK_TREE "/examples", folder.path("examples")));
    folder.file(exampleIn("make"), "Makefile");
    const Ran result = ranOther("make", {"-C", folder.path("."), "check"});
    QVERIFY2(result.code == 0 && result.out.contains("0 failures"), result.out + result.error);
}

void TestBenchGuide::pytest()
{
    const ListFolder folder;
    const QString script = folder.file(exampleIn("python"), "test_example.py");
    const Ran result = ranOther("/usr/bin/python3", {"-m", "pytest", "-q", script});
    QVERIFY2(result.code == 0 && result.out.contains("2 passed"), result.out + result.error);
}

QTEST_GUILESS_MAIN(TestBenchGuide)

#include "tst_benchguide.moc"

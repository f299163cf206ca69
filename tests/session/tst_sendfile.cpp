#include "runningdevice.h"
#include "testfiles.h"

#include <QProcess>
#include <QtTest>

/// A command file goes out and is answered without a window; SENDFILE is the program that does it.
class TestSendFile : public QObject
{
    Q_OBJECT

private slots:
    void anExampleIsSentTwiceAndAnswered();
    void nothingOfItKnowsWidgets();
};

namespace {

QStringList linesOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0) {
        return {QStringLiteral("failed: ") + process.readAllStandardError()};
    }
    return QString::fromLocal8Bit(process.readAllStandardOutput())
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

void TestSendFile::anExampleIsSentTwiceAndAnswered()
{
    RunningDevice device;
    QVERIFY(device.startOnly());
    const QStringList lines =
        linesOf(SENDFILE, {inTree("examples/loop.txt"), device.printedPath()});
    const QStringList pass = lines.mid(0, lines.size() / 2);
    QVERIFY2(lines.size() % 2 == 0 && !pass.isEmpty(), qPrintable(lines.join('\n')));
    QCOMPARE(lines.filter(QRegularExpression("^tx")).size(),
             lines.filter(QRegularExpression("^rx")).size());
    QCOMPARE(lines.at(0), QString("tx 1 5a a5 05 10 02 00 00 01"));
    const QRegularExpression number("^(tx|rx) \\d+ ");
    const QStringList once = QStringList(pass).replaceInStrings(number, "\\1 ");
    const QStringList again = lines.mid(pass.size()).replaceInStrings(number, "\\1 ");
    QCOMPARE(again, once);
}

void TestSendFile::nothingOfItKnowsWidgets()
{
    const QStringList libraries = linesOf("ldd", {SENDFILE});
    QVERIFY(!libraries.filter("libQt5SerialPort").isEmpty());
    QCOMPARE(libraries.filter("libQt5Widgets"), QStringList());
    QCOMPARE(libraries.filter("libQt5Gui"), QStringList());
}

QTEST_GUILESS_MAIN(TestSendFile)

#include "testfiles.h"
#include "tst_sendfile.moc"

#include "devicetalk.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

#include <csignal>

class TestDevicePort : public QObject
{
    Q_OBJECT

private slots:
    void publishesAndPrintsItsPort();
    void makesTheFolder();
    void removesThePortWhenTold_data();
    void removesThePortWhenTold();
    void leavesAPortThatIsNotItsOwn();
    void replacesALeftBehindLink();
    void takesOverFromADeviceThatDied();
    void refusesTheNameOfARunningDevice();
    void refusesToReplaceAFile();

    void wrongOptionsEndIt_data();
    void wrongOptionsEndIt();
    void printsHelp();
};

void TestDevicePort::publishesAndPrintsItsPort()
{
    RunningDevice device;
    QVERIFY(device.startOnly());
    QCOMPARE(device.printedPath(), device.folder() + "/simulated");
    const QFileInfo link(device.printedPath());
    QVERIFY(link.isSymLink());
    QVERIFY(link.symLinkTarget().startsWith("/dev/pts/"));
    QVERIFY(device.openPort());
}

void TestDevicePort::makesTheFolder()
{
    RunningDevice device;
    const QString folder = device.folder() + "/new/ports";
    QVERIFY(device.start({"--ports", folder, "--name", "other"}));
    QCOMPARE(device.printedPath(), folder + "/other");
}

void TestDevicePort::removesThePortWhenTold_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void TestDevicePort::removesThePortWhenTold()
{
    QFETCH(int, signal);
    RunningDevice device;
    QVERIFY(device.start());
    ::kill(static_cast<pid_t>(device.process().processId()), signal);
    QVERIFY(device.process().waitForFinished());
    QCOMPARE(device.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(device.process().exitCode(), 0);
    const QDir folder(device.folder());
    QCOMPARE(
        folder.entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList());
}

void TestDevicePort::leavesAPortThatIsNotItsOwn()
{
    RunningDevice device;
    QVERIFY(device.startOnly());
    QVERIFY(QFile::remove(device.printedPath()));
    QVERIFY(QFile::link("/dev/null", device.printedPath()));
    device.process().terminate();
    QVERIFY(device.process().waitForFinished());
    QCOMPARE(QFile::symLinkTarget(device.printedPath()), QString("/dev/null"));
}

void TestDevicePort::replacesALeftBehindLink()
{
    RunningDevice device;
    QVERIFY(QFile::link("/dev/pts/nobody", device.folder() + "/simulated"));
    QVERIFY(device.start());
    QCOMPARE(ask(device, frame("B"), 4), frame("B"));
}

void TestDevicePort::takesOverFromADeviceThatDied()
{
    RunningDevice first;
    QVERIFY(first.startOnly());
    first.process().kill();
    QVERIFY(first.process().waitForFinished());
    QVERIFY(QFileInfo(first.printedPath()).isSymLink());

    RunningDevice second;
    QVERIFY(second.start({"--ports", first.folder()}));
    QCOMPARE(second.printedPath(), first.printedPath());
    QCOMPARE(ask(second, frame("B"), 4), frame("B"));
}

void TestDevicePort::refusesTheNameOfARunningDevice()
{
    RunningDevice first;
    QVERIFY(first.start());
    RunningDevice second;
    QVERIFY(!second.startOnly({"--ports", first.folder()}));
    QCOMPARE(second.process().exitCode(), 1);
    QVERIFY(second.process().readAllStandardError().contains("running device"));
    QCOMPARE(ask(first, frame("B"), 4), frame("B"));

    RunningDevice third;
    QVERIFY(third.start({"--ports", first.folder(), "--name", "another"}));
    QCOMPARE(ask(third, frame("B"), 4), frame("B"));
}

void TestDevicePort::refusesToReplaceAFile()
{
    RunningDevice device;
    const QString path = device.folder() + "/simulated";
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QVERIFY(!device.startOnly());
    QCOMPARE(device.process().exitCode(), 1);
    QVERIFY(device.process().readAllStandardError().contains(path.toLocal8Bit()));
    QVERIFY(QFileInfo(path).isFile());
}

void TestDevicePort::wrongOptionsEndIt_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("unknown") << QStringList{"--loud"};
    QTest::newRow("wrong value") << QStringList{"--header", "5A"};
    QTest::newRow("wrong value despite --help") << QStringList{"--help", "--delay", "x"};
    QTest::newRow("argument") << QStringList{"stray"};
}

void TestDevicePort::wrongOptionsEndIt()
{
    QFETCH(QStringList, options);
    RunningDevice device;
    QVERIFY(!device.startOnly(options));
    QCOMPARE(device.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(device.process().exitCode(), 2);
    QVERIFY(device.process().readAllStandardError().startsWith("tarnwick-device: "));
    QCOMPARE(device.process().readAllStandardOutput(), QByteArray());
}

void TestDevicePort::printsHelp()
{
    RunningDevice device;
    QVERIFY(device.startOnly({"--help"}));
    QVERIFY(device.process().waitForFinished());
    QCOMPARE(device.process().exitCode(), 0);
    QVERIFY(device.process().readAllStandardOutput().contains("--chatter"));
    QVERIFY(QDir(device.folder()).isEmpty());
}

QTEST_GUILESS_MAIN(TestDevicePort)
#include "tst_deviceport.moc"

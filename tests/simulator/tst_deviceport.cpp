#include "devicetalk.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

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
    void takesOverALockFile_data();
    void takesOverALockFile();
    void namesALockFileThatIsInTheWay_data();
    void namesALockFileThatIsInTheWay();
    void endsWhileNobodyReadsItsOutput();
    void refusesTheNameOfARunningDevice();
    void refusesToReplaceAFile();

    void wrongOptionsEndIt_data();
    void wrongOptionsEndIt();
    void printsHelp();
};

namespace {

QString lockFileOf(const RunningDevice &device)
{
    return device.folder() + "/.simulated.lock";
}

/// A process whose standard output is a descriptor of ours.
class OutputTo : public QProcess
{
public:
    explicit OutputTo(int descriptor)
        : m_descriptor(descriptor)
    {
        setProcessChannelMode(QProcess::ForwardedChannels);
    }

protected:
    void setupChildProcess() override { dup2(m_descriptor, STDOUT_FILENO); }

private:
    int m_descriptor;
};

} // namespace

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

void TestDevicePort::takesOverALockFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("mode");

    QTest::newRow("empty") << QByteArray() << 0644;
    QTest::newRow("rubbish") << QByteArray("\xFF\0\nno process", 13) << 0644;
    QTest::newRow("of a process that runs") << QByteArray::number(getpid()) + "\nother\nhost\n"
                                            << 0644;
    QTest::newRow("readable by nobody") << QByteArray("1\n") << 0;
}

void TestDevicePort::takesOverALockFile()
{
    QFETCH(QByteArray, content);
    QFETCH(int, mode);
    RunningDevice device;
    const QString path = lockFileOf(device);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    QCOMPARE(chmod(qUtf8Printable(path), static_cast<mode_t>(mode)), 0);
    QVERIFY(device.start());
    QCOMPARE(ask(device, frame("B"), 4), frame("B"));
    RunningDevice second;
    QVERIFY(!second.startOnly({"--ports", device.folder()}));
}

void TestDevicePort::namesALockFileThatIsInTheWay_data()
{
    QTest::addColumn<QString>("kind");

    QTest::newRow("folder") << "folder";
    QTest::newRow("named pipe") << "pipe";
    QTest::newRow("link") << "link";
}

void TestDevicePort::namesALockFileThatIsInTheWay()
{
    QFETCH(QString, kind);
    RunningDevice device;
    const QString path = lockFileOf(device);
    if (kind == "folder") {
        QVERIFY(QDir().mkdir(path));
    } else if (kind == "pipe") {
        QCOMPARE(mkfifo(qUtf8Printable(path), 0600), 0);
    } else {
        QVERIFY(QFile::link("/dev/null", path));
    }
    QVERIFY(!device.startOnly());
    QCOMPARE(device.process().exitCode(), 1);
    QVERIFY(device.process().readAllStandardError().contains(path.toLocal8Bit()));
    QVERIFY(QFileInfo(path).exists());
}

void TestDevicePort::endsWhileNobodyReadsItsOutput()
{
    std::array<int, 2> ends{};
    QCOMPARE(pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK), 0);
    const std::array<char, 4096> filling{};
    while (::write(ends[1], filling.data(), filling.size()) > 0) {
    }
    const QTemporaryDir folder;
    const QString link = folder.filePath("simulated");
    OutputTo device(ends[1]);
    device.start(TARNWICK_DEVICE, {"--ports", folder.path()});
    QTRY_VERIFY(QFileInfo(link).isSymLink());
    device.terminate();
    QVERIFY(device.waitForFinished());
    QCOMPARE(device.exitStatus(), QProcess::NormalExit);
    QCOMPARE(device.exitCode(), 0);
    QVERIFY(QDir(folder.path()).isEmpty());
    ::close(ends[0]);
    ::close(ends[1]);
}

void TestDevicePort::refusesTheNameOfARunningDevice()
{
    RunningDevice first;
    QVERIFY(first.start());
    RunningDevice second;
    QVERIFY(!second.startOnly({"--ports", first.folder()}));
    QCOMPARE(second.process().exitCode(), 1);
    const QByteArray told = second.process().readAllStandardError();
    QVERIFY(told.contains("running device"));
    QVERIFY(told.contains(lockFileOf(first).toLocal8Bit()));
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

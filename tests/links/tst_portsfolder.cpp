#include "links/serial/portsfolder.h"
#include "monitortest.h"
#include "testfiles.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

/// The folder whose links are ports, as the monitor of devices watches it.
class TestPortsFolder : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void linkComesAndGoes();
    void linkIsReplaced();
    void linkIsReplacedByItsLike_data();
    void linkIsReplacedByItsLike();
    void whatIsNoLinkIsIgnored();
    void missingFolder();
    void folderIsMadeAgain_data();
    void folderIsMadeAgain();
    void namesInNaturalOrder();

private:
    QString inFolder(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestPortsFolder::initTestCase()
{
    const QByteArray trouble = enterPrivateSystem();
    QVERIFY2(trouble.isEmpty(), trouble);
}

void TestPortsFolder::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void TestPortsFolder::linkComesAndGoes()
{
    QVERIFY(QFile::link("/dev/null", inFolder("old")));
    DeviceMonitor monitor(m_folder->path());
    const Told told(monitor);
    QVERIFY(monitor.start());
    const QString link = inFolder("device");
    QVERIFY(QFile::link("/dev/null", link));
    QTRY_COMPARE(told, QStringList("+ port " + link));
    QCOMPARE(linkedPortNames(m_folder->path()), QStringList({link, inFolder("old")}));
    QVERIFY(QFile::remove(link));
    QTRY_COMPARE(told, QStringList({"+ port " + link, "- port " + link}));
    QVERIFY(QFile::rename(inFolder("old"), inFolder("new")));
    QTRY_COMPARE(told.mid(2),
                 QStringList({"- port " + inFolder("old"), "+ port " + inFolder("new")}));
}

void TestPortsFolder::linkIsReplaced()
{
    const QString link = inFolder("device");
    QVERIFY(QFile::link("/dev/null", link));
    DeviceMonitor monitor(m_folder->path());
    const Told told(monitor);
    QVERIFY(monitor.start());
    QVERIFY(QFile::remove(link));
    QVERIFY(QFile::link("/dev/zero", link));
    QTRY_COMPARE(told, QStringList({"- port " + link, "+ port " + link}));
}

void TestPortsFolder::linkIsReplacedByItsLike_data()
{
    QTest::addColumn<bool>("afterTheFolderAbove");

    QTest::newRow("alone") << false;
    QTest::newRow("after a change of the folder above") << true;
}

void TestPortsFolder::linkIsReplacedByItsLike()
{
    QFETCH(bool, afterTheFolderAbove);
    QVERIFY(QDir(m_folder->path()).mkdir("links"));
    const QString link = inFolder("links/device");
    QVERIFY(QFile::link("/dev/null", link));
    DeviceMonitor monitor(inFolder("links"));
    const Told told(monitor);
    QSignalSpy replaced(&monitor, &DeviceMonitor::replacedUnseen);
    QVERIFY(monitor.start());
    // Which of two folders is told of first differs from time to time.
    for (int times = 0; times < 20; ++times) {
        replaced.clear();
        if (afterTheFolderAbove) {
            writeFile(inFolder(QString::number(times)), "another");
        }
        QVERIFY(QFile::remove(link));
        QVERIFY(QFile::link("/dev/null", link));
        QTRY_VERIFY(!replaced.isEmpty());
    }
    QCOMPARE(told, QStringList());
    // What is seen is not told so.
    const auto before = replaced.size();
    QVERIFY(QFile::remove(link));
    QTRY_COMPARE(told, QStringList("- port " + link));
    QCOMPARE(replaced.size(), before);
}

void TestPortsFolder::whatIsNoLinkIsIgnored()
{
    DeviceMonitor monitor(m_folder->path());
    const Told told(monitor);
    QVERIFY(monitor.start());
    QFile file(inFolder("notes.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(QDir(m_folder->path()).mkdir("folder"));
    QVERIFY(QFile::link("/dev/gone", inFolder("leads nowhere")));
    QVERIFY(QFile::link("/dev/null", inFolder("device")));
    QTRY_COMPARE(told, QStringList("+ port " + inFolder("device")));
}

void TestPortsFolder::missingFolder()
{
    const QString folder = inFolder("missing");
    DeviceMonitor monitor(folder);
    const Told told(monitor);
    QVERIFY(monitor.start());
    QVERIFY(announce("add", lastPort));
    QTRY_COMPARE(told, QStringList("+ port ttyUSB99"));
    QVERIFY(linkedPortNames(folder).isEmpty());
    QVERIFY(QDir().mkdir(folder));
    QVERIFY(QFile::link("/dev/null", folder + "/device"));
    QTRY_COMPARE(told.last(), "+ port " + folder + "/device");
}

void TestPortsFolder::folderIsMadeAgain_data()
{
    QTest::addColumn<bool>("moved");
    QTest::addColumn<bool>("atOnce");

    QTest::newRow("deleted") << false << false;
    QTest::newRow("deleted and made in one go") << false << true;
    QTest::newRow("moved away") << true << false;
    QTest::newRow("moved away and made in one go") << true << true;
}

void TestPortsFolder::folderIsMadeAgain()
{
    QFETCH(bool, moved);
    QFETCH(bool, atOnce);

    const QString folder = inFolder("ports");
    const QString link = folder + "/device";
    QVERIFY(QDir().mkdir(folder));
    QVERIFY(QFile::link("/dev/null", link));
    DeviceMonitor monitor(folder);
    const Told told(monitor);
    QVERIFY(monitor.start());
    QStringList expected;
    for (int round = 0; round < 3; ++round) {
        const QString elsewhere = inFolder("old" + QString::number(round));
        QVERIFY(moved ? QDir().rename(folder, elsewhere) : QDir(folder).removeRecursively());
        expected += "- port " + link;
        if (!atOnce) {
            QTRY_COMPARE(told, expected);
        }
        QVERIFY(QDir().mkdir(folder));
        QVERIFY(QFile::link("/dev/zero", folder + "/other"));
        expected += "+ port " + folder + "/other";
        QTRY_COMPARE(told, expected);
        QVERIFY(QFile::remove(folder + "/other"));
        QVERIFY(QFile::link("/dev/null", link));
        expected += {"- port " + folder + "/other", "+ port " + link};
        QTRY_COMPARE(told, expected);
    }
}

void TestPortsFolder::namesInNaturalOrder()
{
    for (const char *name : {"port10", "port9", "another"}) {
        QVERIFY(QFile::link("/dev/null", inFolder(name)));
    }
    const QStringList expected{inFolder("another"), inFolder("port9"), inFolder("port10")};
    QCOMPARE(linkedPortNames(m_folder->path()), expected);
}

QTEST_GUILESS_MAIN(TestPortsFolder)
#include "tst_portsfolder.moc"

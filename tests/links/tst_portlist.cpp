#include "links/serial/portlist.h"

#include <QDir>
#include <QFile>
#include <QSerialPortInfo>
#include <QTemporaryDir>
#include <QtTest>

class TestPortList : public QObject
{
    Q_OBJECT

private slots:
    void linksFollowTheSystemsPortsInNaturalOrder();
    void deadLinksAndOtherFilesAreNoPorts();
    void aMissingFolderAddsNothing();
    void noFolderAddsNothing();
    void theSystemTellsNoUsbSerialPort();

private:
    static int systemPortCount() { return QSerialPortInfo::availablePorts().size(); }
    static void link(const QTemporaryDir &folder, const QString &name, const QString &target);
    static QStringList linksOf(const QTemporaryDir &folder);
};

void TestPortList::link(const QTemporaryDir &folder, const QString &name, const QString &target)
{
    QVERIFY(QFile::link(target, folder.filePath(name)));
}

QStringList TestPortList::linksOf(const QTemporaryDir &folder)
{
    return listPorts(folder.path()).names.mid(systemPortCount());
}

void TestPortList::linksFollowTheSystemsPortsInNaturalOrder()
{
    const QTemporaryDir folder;
    for (const char *name : {"device10", "device2", "another"}) {
        link(folder, name, "/dev/null");
    }
    QCOMPARE(linksOf(folder), QStringList({folder.filePath("another"), folder.filePath("device2"),
                                           folder.filePath("device10")}));
}

void TestPortList::deadLinksAndOtherFilesAreNoPorts()
{
    const QTemporaryDir folder;
    link(folder, "dead", folder.filePath("nothing"));
    QFile file(folder.filePath("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(QDir(folder.path()).mkdir("folder"));
    QCOMPARE(linksOf(folder), QStringList());
}

void TestPortList::aMissingFolderAddsNothing()
{
    const QTemporaryDir folder;
    QCOMPARE(listPorts(folder.filePath("nothing")).names.size(), systemPortCount());
}

void TestPortList::noFolderAddsNothing()
{
    const QTemporaryDir folder;
    link(folder, "device", "/dev/null");
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    const int count = listPorts({}).names.size();
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(count, systemPortCount());
}

void TestPortList::theSystemTellsNoUsbSerialPort()
{
    const QTemporaryDir folder;
    QCOMPARE(listPorts(folder.path()).usbSerialIndex, -1);
}

QTEST_GUILESS_MAIN(TestPortList)
#include "tst_portlist.moc"

#include "links/hid/deviceids.h"
#include "testfiles.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

class TestDeviceIdFile : public QObject
{
    Q_OBJECT

private slots:
    void whatCouldBlockIsLeftAlone_data();
    void whatCouldBlockIsLeftAlone();
    void hugeFileIsRefusedUnread();
};

void TestDeviceIdFile::whatCouldBlockIsLeftAlone_data()
{
    QTest::addColumn<bool>("throughLink");

    QTest::newRow("a named pipe") << false;
    QTest::newRow("a link to one") << true;
}

void TestDeviceIdFile::whatCouldBlockIsLeftAlone()
{
    QFETCH(bool, throughLink);
    const QTemporaryDir folder;
    const QString pipe = folder.filePath("pipe");
    QCOMPARE(mkfifo(qUtf8Printable(pipe), 0600), 0);
    const QString link = folder.filePath("hidDeviceID.ini");
    QVERIFY(QFile::link(pipe, link));
    const QString name = throughLink ? link : pipe;
    QVERIFY(readDeviceIdFile(name).isEmpty());
    QCOMPARE(readPacketSize(name, {0xEEEF, 0x1616}), defaultPacketSize);
    QVERIFY(!QFileInfo(pipe).isFile());
}

void TestDeviceIdFile::hugeFileIsRefusedUnread()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath("hidDeviceID.ini");
    writeFile(name, "VID_EEEF,PID_1616,32\n");
    QCOMPARE(readDeviceIdFile(name).size(), 1);
    QVERIFY(QFile::resize(name, qint64(1) << 40));
    QVERIFY(readDeviceIdFile(name).isEmpty());
}

QTEST_GUILESS_MAIN(TestDeviceIdFile)
#include "tst_deviceidfile.moc"

#include "knowntypes.h"
#include "links/hid/deviceids.h"
#include "testfiles.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

Q_DECLARE_METATYPE(DeviceIds)

namespace {

QByteArray readFile(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

QByteArray lines(const QByteArray &line, int count)
{
    return QByteArray(line + '\n').repeated(count);
}

} // namespace

class TestDeviceIds : public QObject
{
    Q_OBJECT

private slots:
    void idsInText_data();
    void idsInText();
    void idsAsText();
    void packetSize_data();
    void packetSize();
    void pairPerLine_data();
    void pairPerLine();
    void missingFileIsCreated();
    void existingFileIsLeftAlone();
    void emptyNameDoesNothing();
    void directoryInPlaceOfTheFile();
    void folderThatCannotBeWrittenTo();
    void everyByteValue();
    void knownTypesMayBeOpened();
};

void TestDeviceIds::idsInText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<DeviceIds>("ids");

    const auto row = [](const char *name, const char *text, quint16 vendor, quint16 product) {
        QTest::newRow(name) << QString::fromUtf8(text) << DeviceIds{vendor, product};
    };
    row("line of the file", "VID_EEEF,PID_2929,512", 0xEEEF, 0x2929);
    row("lower case", "vid_eeef,pid_1616,64", 0xEEEF, 0x1616);
    row("device path", R"(\\?\hid#vid_eeef&pid_1616#6&1a2b3c4d&0&0000#{4d1e55b2})", 0xEEEF, 0x1616);
    row("product first", "PID_0001 VID_0002", 2, 1);
    row("only a vendor", "VID_1234", 0x1234, 0);
    row("only a product", "PID_1234", 0, 0x1234);
    row("nothing", "", 0, 0);
    row("path without IDs", "/dev/hidraw0", 0, 0);
    row("first match counts", "VID_0001,PID_0002,VID_0003,PID_0004", 1, 2);
    row("no hex digits", "VID_WXYZ,PID_00GG", 0, 0);
    row("too few characters", "PID_0001,VID_123", 0, 1);
    row("more than four digits", "VID_12345,PID_ABCDE", 0x1234, 0xABCD);
    row("largest", "VID_FFFF,PID_FFFF", 0xFFFF, 0xFFFF);
}

void TestDeviceIds::idsInText()
{
    QFETCH(QString, text);
    QFETCH(DeviceIds, ids);
    QCOMPARE(parseDeviceIds(text).vendor, ids.vendor);
    QCOMPARE(parseDeviceIds(text).product, ids.product);
}

void TestDeviceIds::idsAsText()
{
    QCOMPARE(deviceIdsText(small), QString("VID_EEEF&PID_1616"));
    QCOMPARE(deviceIdsText({0x00AB, 0x1}), QString("VID_00AB&PID_0001"));
}

void TestDeviceIds::packetSize_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("size");

    const auto row = [](const char *name, const QByteArray &content, int size) {
        QTest::newRow(name) << content << size;
    };
    row("line gives it", "VID_EEEF,PID_1616,512", 512);
    row("no file content", "", 64);
    row("other devices only", "VID_EEEF,PID_2929,512\nVID_1234,PID_1616,512\n", 64);
    row("later line", "VID_EEEF,PID_2929,512\nVID_EEEF,PID_1616,32", 32);
    row("first of two lines", "VID_EEEF,PID_1616,8\nVID_EEEF,PID_1616,16\n", 8);
    row("first line unusable", "VID_EEEF,PID_1616,x\nVID_EEEF,PID_1616,16\n", 64);
    row("lower case", "vid_eeef,pid_1616,128", 128);
    row("number after the last comma", "VID_EEEF,PID_1616,10,20", 20);
    row("line ends of other systems", "VID_EEEF,PID_1616,512\r\nVID_1,PID_1,8\r\n", 512);
    row("blanks around the number", "VID_EEEF,PID_1616, 512 ", 512);
    row("no number", "VID_EEEF,PID_1616,", 64);
    row("no comma", "VID_EEEF PID_1616 512", 64);
    row("hexadecimal", "VID_EEEF,PID_1616,0x20", 64);
    row("smallest", "VID_EEEF,PID_1616,1", 1);
    row("largest", "VID_EEEF,PID_1616,515", 515);
    row("zero", "VID_EEEF,PID_1616,0", 64);
    row("negative", "VID_EEEF,PID_1616,-1", 64);
    row("longer than a packet", "VID_EEEF,PID_1616,516", 64);
    row("beyond a number", "VID_EEEF,PID_1616,99999999999", 64);
    row("after 100,000 lines", lines("something else", 100'000) + "VID_EEEF,PID_1616,256", 256);
}

void TestDeviceIds::packetSize()
{
    QFETCH(QByteArray, content);
    QFETCH(int, size);
    QCOMPARE(packetSizeIn(content, small), size);

    const QTemporaryDir folder;
    const QString name = folder.filePath("hidDeviceID.ini");
    QCOMPARE(readPacketSize(name, small), 64);
    writeFile(name, content);
    QCOMPARE(readPacketSize(name, small), size);
}

void TestDeviceIds::pairPerLine_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QVector<DeviceIds>>("pairs");

    const auto row = [](const char *name, const QByteArray &content,
                        const QVector<DeviceIds> &pairs) {
        QTest::newRow(name) << content << pairs;
    };
    row("empty file", "", {});
    row("two lines", "VID_EEEF,PID_2929,512\nVID_EEEF,PID_1616,64", {large, small});
    row("line end at the end", "VID_EEEF,PID_1616,64\n", {small});
    row("listed twice", "VID_EEEF,PID_1616,64\nVID_EEEF,PID_1616,64\n", {small, small});
    row("line without a match", "# devices\nVID_EEEF,PID_1616,64\n", {{}, small});
    row("half a match", "VID_EEEF,64\n", {{0xEEEF, 0}});
    row("empty line", "\nVID_EEEF,PID_1616,64\n\n", {{}, small, {}});
    row("100,000 lines", lines("VID_EEEF,PID_1616,64", 100'000),
        QVector<DeviceIds>(100'000, small));
}

void TestDeviceIds::pairPerLine()
{
    QFETCH(QByteArray, content);
    QFETCH(QVector<DeviceIds>, pairs);
    QVERIFY(parseDeviceIdFile(content) == pairs);

    const QTemporaryDir folder;
    const QString name = folder.filePath("hidDeviceID.ini");
    writeFile(name, content);
    QVERIFY(readDeviceIdFile(name) == pairs);
}

void TestDeviceIds::missingFileIsCreated()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath("hidDeviceID.ini");
    const QVector<DeviceIds> expected{large, small};
    QVERIFY(readDeviceIdFile(name) == expected);
    QCOMPARE(readFile(name), QByteArray("VID_EEEF,PID_2929,512\nVID_EEEF,PID_1616,64"));
    QCOMPARE(readPacketSize(name, large), 512);
    QCOMPARE(readPacketSize(name, small), 64);

    QVERIFY(QFile::remove(name));
    QVERIFY(readDeviceIdFile(name) == expected);
    QCOMPARE(readFile(name), QByteArray("VID_EEEF,PID_2929,512\nVID_EEEF,PID_1616,64"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

void TestDeviceIds::existingFileIsLeftAlone()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath("hidDeviceID.ini");
    writeFile(name, "");
    QVERIFY(readDeviceIdFile(name).isEmpty());
    QCOMPARE(readFile(name), QByteArray());
}

void TestDeviceIds::emptyNameDoesNothing()
{
    QVERIFY(readDeviceIdFile(QString()).isEmpty());
    QCOMPARE(readPacketSize(QString(), small), 64);
}

void TestDeviceIds::directoryInPlaceOfTheFile()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath("hidDeviceID.ini");
    QVERIFY(QDir().mkdir(name));
    QVERIFY(readDeviceIdFile(name).isEmpty());
    QCOMPARE(readPacketSize(name, small), 64);
    QVERIFY(QFileInfo(name).isDir());
}

void TestDeviceIds::folderThatCannotBeWrittenTo()
{
    const QString name = "/proc/hidDeviceID.ini";
    QVERIFY(readDeviceIdFile(name).isEmpty());
    QCOMPARE(readPacketSize(name, large), 64);
}

void TestDeviceIds::everyByteValue()
{
    QByteArray content;
    for (int value = 0; value < 256; ++value) {
        content.append(char(value));
    }
    const QVector<DeviceIds> pairs = parseDeviceIdFile(content + '\n' + content);
    QVERIFY(pairs == QVector<DeviceIds>(4));
    QCOMPARE(packetSizeIn(content + "VID_EEEF,PID_1616,32", small), 32);
}

/// What is listed from the start, and what the udev rules let the user open, are the same.
void TestDeviceIds::knownTypesMayBeOpened()
{
    const QString path = inTree("packaging/linux/70-tarnwick.rules");
    QStringList rules = QString(readFile(path)).split('\n').filter(QRegularExpression("^[^#]"));
    for (const DeviceIds ids : parseDeviceIdFile(defaultDeviceIdFile())) {
        const QString rule =
            QString::asprintf("SUBSYSTEM==\"hidraw\", KERNELS==\"0003:%04X:%04X.*\", "
                              "GROUP=\"plugdev\", MODE=\"0660\", TAG+=\"uaccess\"",
                              ids.vendor, ids.product);
        QCOMPARE(rules.removeAll(rule), 1);
    }
    QCOMPARE(rules, QStringList());
}

QTEST_APPLESS_MAIN(TestDeviceIds)
#include "testfiles.h"
#include "tst_deviceids.moc"

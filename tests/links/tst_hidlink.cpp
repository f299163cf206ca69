#include "attachedhid.h"
#include "links/hid/hidlink.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using Function = HidCall::Function;

namespace {

const char barePath[] = "/dev/hidraw-bare";

} // namespace

/// Listing devices, opening one and writing to it.
class TestHidLink : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void listing();
    void listingReadsTheFileAfresh();
    void closedLink();
    void opening_data();
    void opening();
    void openingFails();
    void openingAnother();
    void idsOfListedPath();
    void writesReports_data();
    void writesReports();
    void writingWhileClosed();
    void reportsThatWaitAreUnsent();
    void closingStopsFirst();

private:
    void replaceFile(const QByteArray &content);

    FakeHid &m_fake = FakeHid::instance();
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
};

void TestHidLink::init()
{
    attachDevices(m_fake);
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath("hidDeviceID.ini");
}

void TestHidLink::cleanup()
{
    QCOMPARE(m_fake.misuses(), 0);
    QCOMPARE(m_fake.openHandles(), 0);
}

void TestHidLink::replaceFile(const QByteArray &content)
{
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

void TestHidLink::listing()
{
    HidLink link(m_file);
    QCOMPARE(link.listDevices(), QStringList({largePath, smallPath}));
    QVERIFY(QFile::exists(m_file));
    QFile::remove(m_file);
    link.readDeviceTypes();
    QVERIFY(QFile::exists(m_file));
}

void TestHidLink::listingReadsTheFileAfresh()
{
    HidLink link(m_file);
    link.listDevices();
    replaceFile("vid_1234,pid_0001,64");
    QCOMPARE(link.listDevices(), QStringList("/dev/keyboard"));
    replaceFile("");
    QCOMPARE(link.listDevices(), QStringList());
}

void TestHidLink::closedLink()
{
    const HidLink link(m_file);
    QVERIFY(!link.isOpen());
    QCOMPARE(link.closedMessage(), QString("Please open the HID Device!"));
    QCOMPARE(link.longestInstruction(), 255);
}

void TestHidLink::opening_data()
{
    QTest::addColumn<QByteArray>("types");
    QTest::addColumn<QString>("path");
    QTest::addColumn<quint16>("product");
    QTest::addColumn<int>("packetSize");

    const QByteArray usual = defaultDeviceIdFile();
    QTest::newRow("long packets") << usual << largePath << large.product << 512;
    QTest::newRow("short packets") << usual << smallPath << small.product << 64;
    QTest::newRow("not in the file") << QByteArray() << largePath << large.product << 64;
    QTest::newRow("unusable size")
        << QByteArray("VID_EEEF,PID_2929,0") << largePath << large.product << 64;
}

void TestHidLink::opening()
{
    QFETCH(QByteArray, types);
    QFETCH(QString, path);
    QFETCH(quint16, product);
    QFETCH(int, packetSize);

    replaceFile(types);
    HidLink link(m_file);
    QVERIFY(link.open(path, 0));
    QVERIFY(link.isOpen());
    QCOMPARE(link.ids().vendor, quint16(0xEEEF));
    QCOMPARE(link.ids().product, product);
    QCOMPARE(link.packetSize(), packetSize);
    QTRY_VERIFY(m_fake.count(Function::Read) > 0);
    QCOMPARE(m_fake.calls(Function::Read).at(0).size, packetSize);
}

void TestHidLink::openingFails()
{
    HidLink link(m_file);
    const QSignalSpy openChanged(&link, &Link::openChanged);
    QVERIFY(!link.open(QString(), 0));
    QVERIFY(!link.open("/dev/hidraw-gone", 0));
    QVERIFY(!link.open("/dev/null", 0));
    QVERIFY(!link.isOpen());
    QCOMPARE(openChanged.count(), 0);
    QCOMPARE(m_fake.count(Function::Read), 0);
}

void TestHidLink::openingAnother()
{
    replaceFile(defaultDeviceIdFile());
    HidLink link(m_file);
    QVERIFY(link.open(smallPath, 0));
    QTRY_VERIFY(m_fake.count(Function::Read) > 0);
    QVERIFY(link.open(largePath, 0));
    QCOMPARE(link.packetSize(), 512);
    QCOMPARE(m_fake.count(Function::Close), 1);
    QVERIFY(!link.open("/dev/hidraw-gone", 0));
    QVERIFY(!link.isOpen());
    QCOMPARE(m_fake.count(Function::Close), 2);
}

void TestHidLink::idsOfListedPath()
{
    m_fake.addDevice(barePath, large.vendor, large.product);
    HidLink link(m_file);
    QVERIFY(link.open(barePath, 0));
    QVERIFY(link.ids() == DeviceIds());
    QCOMPARE(link.packetSize(), 64);

    link.listDevices();
    QVERIFY(link.open(barePath, 0));
    QVERIFY(link.ids() == large);
    QCOMPARE(link.packetSize(), 512);
}

void TestHidLink::writesReports_data()
{
    QTest::addColumn<QByteArray>("types");
    QTest::addColumn<quint8>("reportId");
    QTest::addColumn<QByteArray>("block");
    QTest::addColumn<QVector<QByteArray>>("buffers");

    const auto buffer = [](char id, const QByteArray &data, int size) {
        return (id + data).leftJustified(size + 1, '\0');
    };
    const QByteArray shortPackets = "VID_EEEF,PID_1616,64";
    const QByteArray longPackets = "VID_EEEF,PID_1616,512";
    QTest::newRow("one frame") << shortPackets << quint8(0) << QByteArray("frame")
                               << QVector<QByteArray>{buffer(0, "frame", 64)};
    QTest::newRow("exactly one report")
        << shortPackets << quint8(0x1F) << QByteArray(64, 'a')
        << QVector<QByteArray>{buffer(0x1F, QByteArray(64, 'a'), 64)};
    QTest::newRow("three reports")
        << shortPackets << quint8(0xFE) << QByteArray(130, 'b')
        << QVector<QByteArray>{buffer(char(0xFE), QByteArray(64, 'b'), 64),
                               buffer(char(0xFE), QByteArray(64, 'b'), 64),
                               buffer(char(0xFE), "bb", 64)};
    QTest::newRow("long report") << longPackets << quint8(1) << QByteArray(130, 'c')
                                 << QVector<QByteArray>{buffer(1, QByteArray(130, 'c'), 512)};
}

void TestHidLink::writesReports()
{
    QFETCH(QByteArray, types);
    QFETCH(quint8, reportId);
    QFETCH(QByteArray, block);
    QFETCH(QVector<QByteArray>, buffers);

    replaceFile(types);
    m_fake.readWithoutWaiting();
    HidLink link(m_file);
    QVERIFY(link.open(smallPath, reportId));
    link.write(block);
    QTRY_COMPARE(m_fake.written().size(), buffers.size());
    QCOMPARE(m_fake.written(), buffers);
}

void TestHidLink::writingWhileClosed()
{
    HidLink link(m_file);
    link.write("lost");
    QVERIFY(link.open(smallPath, 0));
    QTRY_VERIFY(m_fake.count(Function::Read) > 1);
    QVERIFY(m_fake.written().isEmpty());
}

void TestHidLink::reportsThatWaitAreUnsent()
{
    HidLink link(m_file);
    QCOMPARE(link.unsentBytes(), 0);
    QVERIFY(link.open(smallPath, 0));
    QCOMPARE(link.unsentBytes(), 0);
    // More than a silent device takes in a while.
    constexpr int reports = 30;
    link.write(QByteArray(reports * 64, 'x'));
    const qint64 unsent = link.unsentBytes();
    QVERIFY(unsent > 0);
    QVERIFY(unsent <= qint64(reports) * 64);
    QCOMPARE(unsent % 64, 0);
    m_fake.readWithoutWaiting();
    QTRY_COMPARE(link.unsentBytes(), 0);
    QTRY_COMPARE(m_fake.written().size(), reports);
    link.write(QByteArray(reports * 64, 'x'));
    link.close();
    QCOMPARE(link.unsentBytes(), 0);
}

void TestHidLink::closingStopsFirst()
{
    HidLink link(m_file);
    QVERIFY(link.open(smallPath, 0));
    QTRY_VERIFY(m_fake.count(Function::Read) > 0);
    link.close();
    link.close();
    QVERIFY(!link.isOpen());
    QCOMPARE(m_fake.calls().last().function, Function::Close);
    QCOMPARE(m_fake.count(Function::Close), 1);
}

QTEST_GUILESS_MAIN(TestHidLink)
#include "tst_hidlink.moc"

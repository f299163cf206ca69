#include "links/serial/portregistry.h"

#include <QtTest>

#include <windows.h>

class TestPortRegistry : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanupTestCase();
    void portsStandInTheRegistrysOrder();
    void withoutAUsbSerialPort();
    void badEntriesAreBlanks_data();
    void badEntriesAreBlanks();
    void emptyKey();
    void missingKey();
    void theSystemsPortsAreListed();
};

namespace {

const QString keyName = QStringLiteral("Software\\Tarnwick test");

const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

void setEntry(const QString &name, const QByteArray &data, DWORD type = REG_SZ)
{
    QCOMPARE(RegSetKeyValueW(HKEY_LOCAL_MACHINE, wide(keyName), wide(name), type, data.constData(),
                             DWORD(data.size())),
             LSTATUS(ERROR_SUCCESS));
}

/// The name with its zero at the end.
void setPort(const QString &name, const QString &port)
{
    setEntry(name, {reinterpret_cast<const char *>(port.utf16()), (port.size() + 1) * 2});
}

} // namespace

void TestPortRegistry::init()
{
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, wide(keyName));
    RegDeleteKeyW(HKEY_LOCAL_MACHINE, wide(keyName));
}

void TestPortRegistry::cleanupTestCase()
{
    init();
}

void TestPortRegistry::portsStandInTheRegistrysOrder()
{
    setPort("\\Device\\Serial0", "COM9");
    setPort("\\Device\\Serial1", "COM10");
    setPort("\\Device\\USBSER000", "COM3");
    setPort("\\Device\\VCP0", "COM1");
    const PortList ports = listRegistryPorts(keyName);
    QCOMPARE(ports.names, QStringList({"COM9", "COM10", "COM3", "COM1"}));
    QCOMPARE(ports.usbSerialIndex, 2);
}

void TestPortRegistry::withoutAUsbSerialPort()
{
    setPort("\\Device\\Serial0", "COM1");
    setPort("\\Device\\usbser000", "COM2");
    const PortList ports = listRegistryPorts(keyName);
    QCOMPARE(ports.names, QStringList({"COM1", "COM2"}));
    QCOMPARE(ports.usbSerialIndex, -1);
}

void TestPortRegistry::badEntriesAreBlanks_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QString>("listed");

    QTest::newRow("data at the limit") << "b" << QByteArray(256, 'x') << QString(256, 'x');
    QTest::newRow("data past it") << "b" << QByteArray(257, 'x') << " ";
    QTest::newRow("name at the limit") << QString(511, 'b') << QByteArray("COM8") << "COM8";
    QTest::newRow("name past it") << QString(512, 'b') << QByteArray("COM8") << " ";
    QTest::newRow("no data") << "b" << QByteArray() << "";
}

void TestPortRegistry::badEntriesAreBlanks()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, data);
    QFETCH(QString, listed);
    setPort("a", "COM1");
    setEntry(name, data, REG_BINARY);
    setPort("c", "COM3");
    QCOMPARE(listRegistryPorts(keyName).names, QStringList({"COM1", listed, "COM3"}));
}

void TestPortRegistry::emptyKey()
{
    HKEY key = nullptr;
    QCOMPARE(RegCreateKeyW(HKEY_LOCAL_MACHINE, wide(keyName), &key), LSTATUS(ERROR_SUCCESS));
    RegCloseKey(key);
    QCOMPARE(listRegistryPorts(keyName).names, QStringList());
    QCOMPARE(readRegistryEntry(keyName, 0).portName, QString(" "));
    QVERIFY(!readRegistryEntry(keyName, 0).isFirstUsbSerial);
}

void TestPortRegistry::missingKey()
{
    QCOMPARE(readRegistryEntry(keyName, 0).portName, QString("Cannot open regedit!"));
    QVERIFY(!readRegistryEntry(keyName, 0).isFirstUsbSerial);
    QCOMPARE(listRegistryPorts(keyName).names, QStringList());
}

void TestPortRegistry::theSystemsPortsAreListed()
{
    const QStringList ports = listPorts({}).names;
    QVERIFY2(ports.contains("COM3"), qPrintable(ports.join(' ')));
    QCOMPARE(ports.indexOf("COM4"), ports.indexOf("COM3") + 1);
}

QTEST_GUILESS_MAIN(TestPortRegistry)
#include "tst_portregistry.moc"

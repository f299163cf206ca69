#include "attachedhid.h"
#include "links/hid/hiddevices.h"

#include <QtTest>

using Function = HidCall::Function;

/// Which of the attached devices are listed for which types.
class TestHidListing : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void listsInOrderOfTheTypes();
    void typeListedTwice();
    void deviceListedTwiceBySystem();
    void typeWithoutIds();
    void manyTypes();
    void enumerationIsFreed();

private:
    FakeHid &m_fake = FakeHid::instance();
};

namespace {

QStringList paths(const QVector<HidDevice> &devices)
{
    QStringList list;
    for (const HidDevice &device : devices) {
        list.append(device.path);
    }
    return list;
}

} // namespace

void TestHidListing::init()
{
    attachDevices(m_fake);
}

void TestHidListing::cleanup()
{
    QCOMPARE(m_fake.misuses(), 0);
}

void TestHidListing::listsInOrderOfTheTypes()
{
    m_fake.addDevice("/dev/hidraw-bare", small.vendor, small.product);
    const QVector<HidDevice> devices = attachedHidDevices({large, small});
    QCOMPARE(paths(devices), QStringList({largePath, smallPath, "/dev/hidraw-bare"}));
    QVERIFY(devices.at(2).ids == small);

    const QVector<HidCall> calls = m_fake.calls(Function::Enumerate);
    QCOMPARE(calls.size(), 2);
    QCOMPARE(calls.at(0).product, large.product);
    QCOMPARE(calls.at(1).vendor, small.vendor);
    QCOMPARE(calls.at(1).product, small.product);
    QVERIFY(attachedHidDevices({}).isEmpty());
}

void TestHidListing::typeListedTwice()
{
    const QStringList expected{smallPath, largePath, smallPath};
    QCOMPARE(paths(attachedHidDevices({small, large, small})), expected);
}

void TestHidListing::deviceListedTwiceBySystem()
{
    m_fake.addDevice(smallPath, small.vendor, small.product);
    QCOMPARE(paths(attachedHidDevices({small})), QStringList({smallPath, smallPath}));
}

void TestHidListing::typeWithoutIds()
{
    QCOMPARE(paths(attachedHidDevices({{}})), QStringList({smallPath, "/dev/keyboard", largePath}));
    QCOMPARE(paths(attachedHidDevices({{0xEEEF, 0}})), QStringList({smallPath, largePath}));
}

void TestHidListing::manyTypes()
{
    QVector<DeviceIds> wanted;
    for (int i = 0; i < 100'000; ++i) {
        wanted.append({quint16(0xE000 + i / 50'000), quint16(i % 50'000)});
    }
    wanted += {large, small, {0, 0x0001}, large};
    const QStringList expected{largePath, smallPath, "/dev/keyboard", largePath};
    QCOMPARE(paths(attachedHidDevices(wanted)), expected);
    QCOMPARE(m_fake.count(Function::Enumerate), 1);
}

void TestHidListing::enumerationIsFreed()
{
    attachedHidDevices({small, {1, 1}, large, small});
    QCOMPARE(m_fake.count(Function::FreeEnumeration), 2);
}

QTEST_GUILESS_MAIN(TestHidListing)
#include "tst_hidlisting.moc"

#include "linktrial.h"

#include "fakehid.h"
#include "fakelink.h"
#include "links/hid/hidlink.h"
#include "links/serial/seriallink.h"
#include "testport.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

class SerialTrial : public LinkTrial
{
public:
    Link &link() override { return *m_link; }
    void destroyLink() override { m_link.reset(); }
    bool open() override { return m_link->open(settings()); }
    int longBlock() const override { return 100000; }
    void send(const QByteArray &bytes) override { m_port.send(bytes); }
    QByteArray received() override { return m_port.received(); }
    void fail() override { m_port.unplug(); }

    void waitUntilRead() override
    {
        const auto *const port = m_link->findChild<QSerialPort *>();
        if (port->bytesAvailable() == 0) {
            QSignalSpy announced(port, &QSerialPort::readyRead);
            QVERIFY(announced.wait());
        }
    }

    bool isDeviceFree() override { return SerialLink(longestRead).open(settings()); }

private:
    static constexpr int longestRead = 4096;

    SerialSettings settings() const
    {
        SerialSettings settings;
        settings.portName = m_port.path();
        return settings;
    }

    TestPort m_port;
    std::unique_ptr<SerialLink> m_link = std::make_unique<SerialLink>(longestRead);
};

class HidTrial : public LinkTrial
{
public:
    HidTrial()
    {
        m_fake.reset();
        m_fake.addDevice(path, 0xEEEF, 0x1616);
        m_fake.readWithoutWaiting();
    }

    ~HidTrial() override
    {
        destroyLink();
        QCOMPARE(m_fake.misuses(), 0);
        QCOMPARE(m_fake.openHandles(), 0);
    }
    Q_DISABLE_COPY(HidTrial)

    Link &link() override { return *m_link; }
    void destroyLink() override { m_link.reset(); }
    bool open() override { return m_link->open(path, 0); }
    int longBlock() const override { return 1280; }
    void send(const QByteArray &bytes) override { m_fake.sendReport(bytes); }

    /// Until the worker, behind the report, reads once more.
    void waitUntilRead() override
    {
        QTRY_COMPARE(m_fake.waitingReports(), 0);
        const int reads = m_fake.count(HidCall::Function::Read);
        QTRY_VERIFY(m_fake.count(HidCall::Function::Read) > reads);
    }

    /// Without the report IDs, and the zeros that fill reports up.
    QByteArray received() override
    {
        QByteArray bytes;
        for (const QByteArray &report : m_fake.written()) {
            bytes += report.mid(1).replace('\0', QByteArray());
        }
        return bytes;
    }

    void fail() override
    {
        m_fake.failWrites();
        m_link->write("x");
    }

    bool isDeviceFree() override { return m_fake.openHandles() == 0; }

private:
    static constexpr char path[] = "/dev/hidraw-trial";

    QTemporaryDir m_folder;
    FakeHid &m_fake = FakeHid::instance();
    std::unique_ptr<HidLink> m_link =
        std::make_unique<HidLink>(m_folder.filePath("hidDeviceID.ini"));
};

class FakeTrial : public LinkTrial
{
public:
    FakeTrial() { m_link->close(); }

    Link &link() override { return *m_link; }
    void destroyLink() override { m_link.reset(); }
    int longBlock() const override { return 1; }
    void send(const QByteArray &bytes) override { m_link->receive(bytes); }
    void waitUntilRead() override {}
    bool isDeviceFree() override { return true; }

    bool open() override
    {
        m_link->close();
        m_link->open();
        return m_link->isOpen();
    }

    QByteArray received() override
    {
        QByteArray bytes;
        for (const QByteArray &block : m_link->blocks) {
            bytes += block;
        }
        return bytes;
    }

    void fail() override
    {
        QTimer::singleShot(0, m_link.get(), [link = m_link.get()] {
            if (link->isOpen()) {
                emit link->lost(QStringLiteral("it failed"));
            }
        });
    }

private:
    std::unique_ptr<FakeLink> m_link = std::make_unique<FakeLink>();
};

} // namespace

std::unique_ptr<LinkTrial> LinkTrial::make(Kind kind)
{
    switch (kind) {
    case Kind::Serial:
        return std::make_unique<SerialTrial>();
    case Kind::Hid:
        return std::make_unique<HidTrial>();
    default:
        return std::make_unique<FakeTrial>();
    }
}

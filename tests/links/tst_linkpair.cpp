#include "fakehid.h"
#include "links/linkpair.h"
#include "testport.h"

#include <QTemporaryDir>
#include <QtTest>

class TestLinkPair : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theSerialLinkIsChosenFirst();
    void choosingClosesTheOtherLink();
    void choosingTheSameLinkLeavesItOpen();
    void bothCanBeClosed();

private:
    bool openSerial() { return m_links->serial().open({m_port->path()}); }
    bool openHid() { return m_links->hid().open(hidPath, 0); }

    static constexpr char hidPath[] = "/dev/hidraw-one";

    QTemporaryDir m_folder;
    std::unique_ptr<TestPort> m_port;
    std::unique_ptr<LinkPair> m_links;
};

void TestLinkPair::init()
{
    FakeHid::instance().reset();
    FakeHid::instance().addDevice(hidPath, 0xEEEF, 0x1616);
    m_port = std::make_unique<TestPort>();
    m_links = std::make_unique<LinkPair>(4096, m_folder.filePath("hidDeviceID.ini"));
}

void TestLinkPair::cleanup()
{
    m_links.reset();
    QCOMPARE(FakeHid::instance().openHandles(), 0);
}

void TestLinkPair::theSerialLinkIsChosenFirst()
{
    QCOMPARE(m_links->mode(), LinkMode::Uart);
    QCOMPARE(&m_links->chosen(), &m_links->serial());
}

void TestLinkPair::choosingClosesTheOtherLink()
{
    QVERIFY(openSerial());
    m_links->choose(LinkMode::Hid);
    QCOMPARE(m_links->mode(), LinkMode::Hid);
    QCOMPARE(&m_links->chosen(), &m_links->hid());
    QVERIFY(!m_links->serial().isOpen());
    QVERIFY(openHid());
    m_links->choose(LinkMode::Uart);
    QCOMPARE(m_links->mode(), LinkMode::Uart);
    QCOMPARE(&m_links->chosen(), &m_links->serial());
    QVERIFY(!m_links->hid().isOpen());
}

void TestLinkPair::choosingTheSameLinkLeavesItOpen()
{
    QVERIFY(openSerial());
    m_links->choose(LinkMode::Uart);
    QVERIFY(m_links->serial().isOpen());
    m_links->choose(LinkMode::Hid);
    QVERIFY(openHid());
    m_links->choose(LinkMode::Hid);
    QVERIFY(m_links->hid().isOpen());
}

void TestLinkPair::bothCanBeClosed()
{
    m_links->close();
    QVERIFY(openSerial());
    QVERIFY(openHid());
    m_links->close();
    QVERIFY(!m_links->serial().isOpen());
    QVERIFY(!m_links->hid().isOpen());
}

QTEST_GUILESS_MAIN(TestLinkPair)
#include "tst_linkpair.moc"

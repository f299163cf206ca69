#include "linktrial.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QThread>
#include <QtTest>

#include <functional>

/// What every kind of link keeps to.
class TestLinkConformance : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void openingAndClosingAreToldOnce();
    void openingAnewIsToldAsBoth();
    void aClosedLinkDropsWhatIsWritten();
    void blocksArriveInOrder();
    void whatWaitsIsUnsent();
    void whatHasComeInIsHandedUpWhenAsked();
    void timesDoNotGoBack();
    void timesAreThoseOfReading();
    void nothingIsHandedUpBesideAHandler();
    void aHandlerMayCloseTheLink();
    void aHandlerMayOpenTheLinkAnew();
    void lossIsToldOnce();
    void whoHearsOfALossMayClose();
    void lossOfAClosedLinkIsNotTold();
    void anOpenLinkCanBeDestroyed();

private:
    static std::unique_ptr<LinkTrial> trial();
};

namespace {

/// What a link hands up.
class HeardBytes : public QObject
{
public:
    explicit HeardBytes(const Link &link)
    {
        connect(&link, &Link::arrived, this, [this](const QByteArray &part, ArrivalTime time) {
            const bool isFirst = times.isEmpty();
            bytes += part;
            times.append(time);
            if (isFirst) {
                whileBusy();
            }
        });
    }

    QByteArray bytes;
    QVector<ArrivalTime> times;
    /// Run by the first handler.
    std::function<void()> whileBusy = [] {};
};

/// What openChanged says, with what isOpen says meanwhile: "open", "closed", or "they differ".
class States : public QStringList
{
public:
    explicit States(const Link &link)
    {
        QObject::connect(&link, &Link::openChanged, &link, [this, &link](bool isOpen) {
            const QString state = isOpen ? "open" : "closed";
            append(link.isOpen() == isOpen ? state : "they differ");
        });
    }
    Q_DISABLE_COPY(States)
};

} // namespace

/// All tests are run for each.
void TestLinkConformance::initTestCase_data()
{
    QTest::addColumn<LinkTrial::Kind>("kind");

    QTest::newRow("serial") << LinkTrial::Kind::Serial;
    QTest::newRow("HID") << LinkTrial::Kind::Hid;
    QTest::newRow("the one of tests") << LinkTrial::Kind::Fake;
}

std::unique_ptr<LinkTrial> TestLinkConformance::trial()
{
    QFETCH_GLOBAL(LinkTrial::Kind, kind);
    return LinkTrial::make(kind);
}

void TestLinkConformance::openingAndClosingAreToldOnce()
{
    const auto trial = this->trial();
    const States states(trial->link());
    QVERIFY(!trial->link().isOpen());
    trial->link().close();
    QVERIFY(states.isEmpty());
    QVERIFY(trial->open());
    QCOMPARE(states, QStringList("open"));
    trial->link().close();
    trial->link().close();
    QVERIFY(!trial->link().isOpen());
    QCOMPARE(states, QStringList({"open", "closed"}));
}

void TestLinkConformance::openingAnewIsToldAsBoth()
{
    const auto trial = this->trial();
    QVERIFY(trial->open());
    const States states(trial->link());
    QVERIFY(trial->open());
    QCOMPARE(states, QStringList({"closed", "open"}));
}

void TestLinkConformance::aClosedLinkDropsWhatIsWritten()
{
    const auto trial = this->trial();
    trial->link().write("before");
    QCOMPARE(trial->link().unsentBytes(), 0);
    QVERIFY(trial->open());
    trial->link().write("open");
    QTRY_COMPARE(trial->received(), QByteArray("open"));
    trial->link().close();
    trial->link().write("after");
    QVERIFY(trial->open());
    trial->link().write("again");
    QTRY_COMPARE(trial->received(), QByteArray("openagain"));
}

void TestLinkConformance::blocksArriveInOrder()
{
    const auto trial = this->trial();
    QVERIFY(trial->open());
    QByteArray all;
    for (int i = 0; i < 30; ++i) {
        const QByteArray block = QByteArray::number(i).append(' ');
        trial->link().write(block);
        all.append(block);
    }
    QTRY_COMPARE(trial->received(), all);
}

void TestLinkConformance::whatWaitsIsUnsent()
{
    const auto trial = this->trial();
    QCOMPARE(trial->link().unsentBytes(), 0);
    QVERIFY(trial->open());
    QCOMPARE(trial->link().unsentBytes(), 0);
    const QByteArray block(trial->longBlock(), 'x');
    trial->link().write(block);
    QVERIFY(trial->link().unsentBytes() >= 0);
    QVERIFY(trial->link().unsentBytes() <= block.size());
    QTRY_COMPARE(trial->received().size(), block.size());
    QTRY_COMPARE(trial->link().unsentBytes(), 0);
    trial->link().write(block);
    trial->link().close();
    QCOMPARE(trial->link().unsentBytes(), 0);
}

/// The event loop does not run meanwhile.
void TestLinkConformance::whatHasComeInIsHandedUpWhenAsked()
{
    const auto trial = this->trial();
    const HeardBytes heard(trial->link());
    trial->link().handUp();
    QVERIFY(trial->open());
    trial->link().handUp();
    QVERIFY(heard.times.isEmpty());
    trial->send("bytes");
    QElapsedTimer sinceSent;
    sinceSent.start();
    while (heard.bytes.isEmpty() && !sinceSent.hasExpired(5000)) {
        QThread::yieldCurrentThread();
        trial->link().handUp();
    }
    QCOMPARE(heard.bytes, QByteArray("bytes"));
    trial->send("more");
    QTRY_COMPARE(heard.bytes, QByteArray("bytesmore"));
}

void TestLinkConformance::timesDoNotGoBack()
{
    constexpr int chunks = 20;
    const auto trial = this->trial();
    const HeardBytes heard(trial->link());
    QVERIFY(trial->open());
    for (int i = 0; i < chunks; ++i) {
        const ArrivalTime before = ArrivalTime::now();
        trial->send(QByteArray(1, char('a' + i)));
        QTRY_COMPARE(heard.bytes.size(), i + 1);
        const ArrivalTime time = heard.times.constLast();
        const ArrivalTime now = ArrivalTime::now();
        QVERIFY(before.monotonicNs <= time.monotonicNs && time.monotonicNs <= now.monotonicNs);
        QVERIFY(before.utcUs <= time.utcUs && time.utcUs <= now.utcUs);
    }
    QCOMPARE(heard.bytes, QByteArray("abcdefghijklmnopqrst"));
}

void TestLinkConformance::timesAreThoseOfReading()
{
    const auto trial = this->trial();
    HeardBytes heard(trial->link());
    QVERIFY(trial->open());
    qint64 readBy = 0;
    heard.whileBusy = [&] {
        trial->send("second");
        trial->waitUntilRead();
        readBy = ArrivalTime::now().monotonicNs;
    };
    trial->send("first ");
    QTRY_COMPARE(heard.bytes, QByteArray("first second"));
    QCOMPARE(heard.times.size(), 2);
    QVERIFY(heard.times.at(0).monotonicNs <= heard.times.at(1).monotonicNs);
    QVERIFY(heard.times.at(1).monotonicNs <= readBy);
}

/// The first handler runs an event loop of its own, as a message box does.
void TestLinkConformance::nothingIsHandedUpBesideAHandler()
{
    const auto trial = this->trial();
    HeardBytes heard(trial->link());
    QVERIFY(trial->open());
    QByteArray heardWhileBusy;
    heard.whileBusy = [&] {
        trial->send("?");
        trial->waitUntilRead();
        QTest::qWait(20);
        heardWhileBusy = heard.bytes;
    };
    trial->send("!");
    QTRY_COMPARE(heard.bytes, QByteArray("!?"));
    QCOMPARE(heardWhileBusy, QByteArray("!"));
}

void TestLinkConformance::aHandlerMayCloseTheLink()
{
    const auto trial = this->trial();
    HeardBytes heard(trial->link());
    const States states(trial->link());
    QVERIFY(trial->open());
    heard.whileBusy = [&] {
        trial->send("unheard");
        trial->waitUntilRead();
        trial->link().close();
    };
    trial->send("!");
    QTRY_VERIFY(!trial->link().isOpen());
    QVERIFY(trial->open());
    trial->send("?");
    QTRY_VERIFY(heard.bytes.endsWith('?'));
    QCOMPARE(heard.bytes, QByteArray("!?"));
    QCOMPARE(states, QStringList({"open", "closed", "open"}));
}

void TestLinkConformance::aHandlerMayOpenTheLinkAnew()
{
    const auto trial = this->trial();
    HeardBytes heard(trial->link());
    QVERIFY(trial->open());
    ArrivalTime before;
    heard.whileBusy = [&] {
        trial->send("unheard");
        trial->waitUntilRead();
        QVERIFY(trial->open());
        before = ArrivalTime::now();
        trial->send("?");
    };
    trial->send("!");
    QTRY_VERIFY(heard.bytes.endsWith('?'));
    QCOMPARE(heard.bytes, QByteArray("!?"));
    QVERIFY(before.monotonicNs <= heard.times.constLast().monotonicNs);
}

void TestLinkConformance::lossIsToldOnce()
{
    const auto trial = this->trial();
    QVERIFY(trial->open());
    const States states(trial->link());
    QSignalSpy lost(&trial->link(), &Link::lost);
    trial->fail();
    QCOMPARE(lost.count(), 0);
    QVERIFY(lost.wait());
    QVERIFY(!lost.at(0).at(0).toString().isEmpty());
    QVERIFY(trial->link().isOpen());
    for (int i = 0; i < 100; ++i) {
        trial->link().write("more");
        QCoreApplication::processEvents();
    }
    QCOMPARE(lost.count(), 1);
    QVERIFY(states.isEmpty());
}

void TestLinkConformance::whoHearsOfALossMayClose()
{
    const auto trial = this->trial();
    QVERIFY(trial->open());
    const States states(trial->link());
    const QSignalSpy lost(&trial->link(), &Link::lost);
    connect(&trial->link(), &Link::lost, &trial->link(), &Link::close);
    trial->fail();
    QTRY_VERIFY(!trial->link().isOpen());
    QCoreApplication::processEvents();
    QCOMPARE(lost.count(), 1);
    QCOMPARE(states, QStringList("closed"));
}

void TestLinkConformance::lossOfAClosedLinkIsNotTold()
{
    const auto trial = this->trial();
    QVERIFY(trial->open());
    const QSignalSpy lost(&trial->link(), &Link::lost);
    trial->fail();
    trial->link().close();
    QCoreApplication::processEvents();
    QCOMPARE(lost.count(), 0);
}

void TestLinkConformance::anOpenLinkCanBeDestroyed()
{
    const auto trial = this->trial();
    const HeardBytes heard(trial->link());
    QVERIFY(trial->open());
    QStringList states;
    connect(&trial->link(), &Link::openChanged, this, [&states] { states.append("changed"); });
    trial->link().write(QByteArray(trial->longBlock(), 'x'));
    trial->send("unheard");
    trial->waitUntilRead();
    const QByteArray heardBefore = heard.bytes;
    trial->destroyLink();
    QCoreApplication::processEvents();
    QVERIFY(states.isEmpty());
    QCOMPARE(heard.bytes, heardBefore);
    QVERIFY(trial->isDeviceFree());
}

QTEST_GUILESS_MAIN(TestLinkConformance)
#include "tst_linkconformance.moc"

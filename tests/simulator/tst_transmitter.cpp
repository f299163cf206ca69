#include "simulator/pseudoterminal.h"
#include "simulator/transmitter.h"

#include <QFile>
#include <QtTest>

#include <array>
#include <fcntl.h>

class TestTransmitter : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void sendsAtOnce();
    void pausesBetweenPiecesOnly();
    void blocksDontMix();
    void dropsBlocksBeyondItsCapacity();
    void forgetsWhatIsCleared();

private:
    void readAll();

    std::optional<PseudoTerminal> m_terminal;
    FileDescriptor m_port;
    QByteArray m_received;
};

void TestTransmitter::init()
{
    m_terminal = PseudoTerminal::open();
    QVERIFY(m_terminal);
    m_port = FileDescriptor(::open(QFile::encodeName(m_terminal->portPath()).constData(),
                                   O_RDWR | O_NOCTTY | O_NONBLOCK));
    QVERIFY(m_port.isValid());
    m_received.clear();
}

void TestTransmitter::readAll()
{
    std::array<char, 4096> buffer{};
    ssize_t count = 0;
    while ((count = ::read(m_port.get(), buffer.data(), buffer.size())) > 0) {
        m_received.append(buffer.data(), static_cast<int>(count));
    }
}

void TestTransmitter::sendsAtOnce()
{
    Transmitter transmitter(*m_terminal, [] { return 1000000; });
    QVERIFY(transmitter.send({"one"}));
    QVERIFY(transmitter.send({"two"}));
    QCOMPARE(transmitter.waitingBytes(), 0);
    QTRY_COMPARE((readAll(), m_received), QByteArray("onetwo"));
}

void TestTransmitter::pausesBetweenPiecesOnly()
{
    int pauses = 0;
    Transmitter transmitter(*m_terminal, [&pauses] {
        ++pauses;
        return 1;
    });
    QVERIFY(transmitter.send({"a", "b", "c"}));
    QCOMPARE(transmitter.waitingBytes(), 2);
    QTRY_COMPARE(transmitter.waitingBytes(), 0);
    QCOMPARE(pauses, 2);
    QTRY_COMPARE((readAll(), m_received), QByteArray("abc"));
}

void TestTransmitter::blocksDontMix()
{
    Transmitter transmitter(*m_terminal, [] { return 1; });
    transmitter.send({"a", "b", "c"});
    transmitter.send({"DEF"});
    transmitter.send({"g", "h"});
    QTRY_COMPARE(transmitter.waitingBytes(), 0);
    QTRY_COMPARE((readAll(), m_received), QByteArray("abcDEFgh"));
}

void TestTransmitter::dropsBlocksBeyondItsCapacity()
{
    Transmitter transmitter(*m_terminal, [] { return 1; });
    QByteArray accepted;
    int dropped = 0;
    for (int i = 0; i < 1000; ++i) {
        const QByteArray block(1000, static_cast<char>(i & 0x7F));
        if (transmitter.send({block})) {
            accepted += block;
        } else {
            ++dropped;
        }
        QVERIFY(transmitter.waitingBytes() <= Transmitter::capacity);
    }
    QVERIFY(dropped > 0);
    QVERIFY(transmitter.waitingBytes() > Transmitter::capacity - 1000);
    QTRY_COMPARE((readAll(), m_received.size()), accepted.size());
    QCOMPARE(m_received, accepted);
}

void TestTransmitter::forgetsWhatIsCleared()
{
    Transmitter transmitter(*m_terminal, [] { return 1; });
    transmitter.send({"a", "b"});
    transmitter.clear();
    QCOMPARE(transmitter.waitingBytes(), 0);
    transmitter.send({"c"});
    QTRY_COMPARE((readAll(), m_received), QByteArray("ac"));
}

QTEST_GUILESS_MAIN(TestTransmitter)
#include "tst_transmitter.moc"

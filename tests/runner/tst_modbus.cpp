#include "ranprogram.h"

#include <QtTest>

/// The program as the master of a MODBUS RTU slave that others have written: frames without start
/// bytes and length, which end with silence.
class TestModbus : public QObject
{
    Q_OBJECT

private slots:
    void aSlaveIsTested();
    void anotherReplyFails();
};

namespace {

const QStringList rtu{"--no-start", "--no-length", "--crc", "-t", "10000"};

/// The slave as a process.
class ModbusSlave
{
public:
    ModbusSlave()
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start("/usr/bin/python3", {TARNWICK_TREE "/tests/runner/modbusslave.py"});
        while (!m_process.canReadLine() && m_process.waitForReadyRead()) {
        }
        m_port = QString::fromLocal8Bit(m_process.readLine()).trimmed();
    }

    ~ModbusSlave()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    ModbusSlave(const ModbusSlave &) = delete;
    ModbusSlave &operator=(const ModbusSlave &) = delete;

    QString port() const { return m_port; }

private:
    QProcess m_process;
    QString m_port;
};

} // namespace

void TestModbus::aSlaveIsTested()
{
    const ModbusSlave slave;
    const Ran result =
        ran(rtu + QStringList{"--strict", "--port", slave.port(), "-"},
            "//@ tarnwick-run 1\n"
            "Read two registers,select,01 03 0000 0002\n//? 01 03 04 0011 0011\n"
            "Write one,select,01 06 0001 1234\n//? 01 06 0001 1234\n"
            "Write two,select,01 10 0002 0002 04 5678 9ABC\n//? 01 10 0002 0002\n"
            "Read them back,select,01 03 0000 0004\n//? 01 03 08 0011 1234 5678 9ABC\n"
            "Read past the end,select,01 03 0063 0002\n//? 01 83 02\n");
    QVERIFY2(result.code == 0, result.out + result.error);
    QVERIFY2(result.out.contains("5 rows, 5 sent, 5 replies, 0 failures"), result.out);
}

void TestModbus::anotherReplyFails()
{
    const ModbusSlave slave;
    const Ran result = ran(rtu + QStringList{"--port", slave.port(), "-"},
                           "//@ tarnwick-run 1\n"
                           "Read a register,select,01 03 0000 0001\n//? 01 03 02 0012\n");
    QCOMPARE(result.code, 1);
    QVERIFY2(result.out.contains("expected 01 03 02 0012, got 01 03 02 00 11"), result.out);
}

QTEST_GUILESS_MAIN(TestModbus)

#include "tst_modbus.moc"

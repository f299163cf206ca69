#include "frames/crc16.h"
#include "recordingsamples.h"
#include "testfiles.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

/// What a network analyser makes of a recording in pcapng.
class TestAnalyser : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void bothDirectionsAreShownWithoutAPlugIn();
    void commentsTellRowAndLink();
    void nothingIsWrongWithTheFile();
    void modbusIsDecoded();
    void ourFramesAreCutIntoFields();
    void aTornFileShowsWhatIsWhole();
};

namespace {

/// A folder with a recording, which the analyser is asked about.
class RecordingOnDisk
{
public:
    explicit RecordingOnDisk(const QByteArray &bytes) { writeFile(path(), bytes); }
    explicit RecordingOnDisk(const QVector<RecordEvent> &events)
        : RecordingOnDisk(sampleFile(RecordingFormat::Pcapng, events))
    {}

    QString path() const { return m_folder.filePath("run.pcapng"); }

    /// The lines that the analyser prints about it, and its exit status.
    QStringList ask(const QStringList &arguments)
    {
        QProcess analyser;
        // Without settings and plug-ins of whoever runs this.
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", m_folder.path());
        environment.insert("XDG_CONFIG_HOME", m_folder.path());
        analyser.setProcessEnvironment(environment);
        analyser.start("tshark", QStringList{"-n", "-r", path()} + arguments);
        analyser.waitForFinished();
        errors = QString::fromUtf8(analyser.readAllStandardError());
        exitCode = analyser.exitCode();
        return QString::fromUtf8(analyser.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    }

    QString errors;
    int exitCode = -1;

private:
    QTemporaryDir m_folder;
};

QByteArray withCrc(const QByteArray &payload)
{
    const quint16 crc = crc16Modbus(payload);
    return payload + char(crc & 0xFFU) + char(crc >> 8U);
}

QString pluginArgument()
{
    return "lua_script:" + inTree("packaging/wireshark/tarnwick.lua");
}

} // namespace

void TestAnalyser::initTestCase()
{
    QVERIFY2(!QStandardPaths::findExecutable("tshark").isEmpty(),
             "no tshark here: packaging/setup test installs it");
}

void TestAnalyser::bothDirectionsAreShownWithoutAPlugIn()
{
    RecordingOnDisk recording(sampleEvents());
    const QStringList lines = recording.ask(
        {"-T", "fields", "-e", "rtacser.eventtype", "-e", "data.data", "-e", "frame.time_epoch"});
    QCOMPARE(lines.size(), 7);
    QVERIFY2(lines.at(1).startsWith("0x01\t") || lines.at(1).startsWith("1\t"),
             qPrintable(lines.at(1)));
    QVERIFY(lines.at(1).contains("5aa508010300000001840a"));
    QVERIFY(lines.at(1).endsWith("1795297441.123466000"));
    QVERIFY2(lines.at(2).startsWith("0x02\t") || lines.at(2).startsWith("2\t"),
             qPrintable(lines.at(2)));
    QVERIFY(lines.at(2).contains("5aa503011234"));
    const QStringList summary = recording.ask({});
    QVERIFY2(summary.at(1).contains("DATA_TX_START"), qPrintable(summary.at(1)));
    QVERIFY2(summary.at(2).contains("DATA_RX_START"), qPrintable(summary.at(2)));
}

void TestAnalyser::commentsTellRowAndLink()
{
    RecordingOnDisk recording(sampleEvents());
    const QStringList lines = recording.ask({"-T", "fields", "-e", "frame.comment"});
    QVERIFY2(lines.at(0).contains("link: /dev/ttyUSB0"), qPrintable(lines.at(0)));
    QVERIFY2(lines.at(1).contains("row: 3"), qPrintable(lines.at(1)));
    QVERIFY2(lines.at(1).contains(QString::fromUtf8("\u6E29\u5EA6")), qPrintable(lines.at(1)));
    QVERIFY2(lines.at(2).contains("bad CRC"), qPrintable(lines.at(2)));
}

void TestAnalyser::nothingIsWrongWithTheFile()
{
    RecordingOnDisk recording(sampleEvents());
    recording.ask({"-V"});
    QCOMPARE(recording.exitCode, 0);
    QVERIFY2(!recording.errors.contains("tshark: "), qPrintable(recording.errors));
    const QStringList faults =
        recording.ask({"-Y", "_ws.malformed || _ws.expert.severity >= 0x00600000"});
    QCOMPARE(faults, QStringList());
}

void TestAnalyser::modbusIsDecoded()
{
    RecordEvent request = sampleEvent(RecordEvent::Kind::Sent);
    request.bytes = withCrc(QByteArray::fromHex("0103006B0003"));
    RecordEvent reply = sampleEvent(RecordEvent::Kind::Received, "", 2000);
    reply.bytes = withCrc(QByteArray::fromHex("010306022B00000064"));
    RecordingOnDisk recording({request, reply});
    const QStringList lines =
        recording.ask({"-d", "rtacser.data,mbrtu", "-T", "fields", "-e", "modbus.func_code", "-e",
                       "modbus.reference_num", "-e", "modbus.regval_uint16"});
    QCOMPARE(lines.value(0), QString("3\t107\t"));
    QVERIFY2(lines.value(1).startsWith("3\t"), qPrintable(lines.value(1)));
    QVERIFY2(lines.value(1).endsWith("555,0,100"), qPrintable(lines.value(1)));
}

void TestAnalyser::ourFramesAreCutIntoFields()
{
    RecordEvent wrong = sampleEvents().at(1);
    wrong.bytes[wrong.bytes.size() - 1] = 0x0B;
    RecordEvent longForm = sampleEvents().at(1);
    longForm.bytes = QByteArray::fromHex("5AA500010410001101") + QByteArray(256, 'x');
    RecordingOnDisk recording({sampleEvents().at(1), sampleEvents().at(3), wrong, longForm});
    const QStringList lines = recording.ask(
        {"-X", pluginArgument(), "-d", "rtacser.data,tarnwick", "-o", "tarnwick.crc:TRUE",
         "-T", "fields",         "-e", "tarnwick.length",       "-e", "tarnwick.cmd",
         "-e", "tarnwick.addr",  "-e", "tarnwick.data",         "-e", "tarnwick.crc",
         "-e", "tarnwick.crc.ok"});
    QVERIFY2(lines.size() >= 4, qPrintable(recording.errors));
    QCOMPARE(lines.at(0), QString("8\t0x01\t0x0300\t00 00 01\t0x0a84\t1"));
    QCOMPARE(lines.at(1).trimmed(), QString());
    QCOMPARE(lines.at(2), QString("8\t0x01\t0x0300\t00 00 01\t0x0b84\t0"));
    QVERIFY2(lines.at(3).startsWith("260\t0x10\t0x0011\t01"), qPrintable(lines.at(3)));
}

void TestAnalyser::aTornFileShowsWhatIsWhole()
{
    RecordingOnDisk recording(
        sampleFileWithoutTail(RecordingFormat::Pcapng, sampleEvents()).chopped(9));
    const QStringList lines = recording.ask({"-T", "fields", "-e", "frame.number"});
    QCOMPARE(lines.size(), 5);
    QVERIFY(recording.errors.contains("cut short"));
}

QTEST_GUILESS_MAIN(TestAnalyser)
#include "tst_analyser.moc"

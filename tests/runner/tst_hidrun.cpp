#include "hidfolder.h"
#include "restrictions.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <csignal>
#include <sys/types.h>

/// The program on HID devices, with a stand-in for hidapi.
class TestHidRun : public QObject
{
    Q_OBJECT

private slots:
    void devicesAreListed();
    void rowsAreAnswered();
    void aReplyThatIsNotExpectedFails();
    void aReplyThatDoesntComeFails();
    void theSerialNumberChoosesTheDevice();
    void noDeviceWithThatSerialNumber();
    void reportsHaveTheirIdAndSize();
    void aKnownDeviceHasItsReportSize();
    void theDeviceIdFileTellsTheReportSize();
    void longFramesTakeSeveralReports();
    void refused();
    void notPermitted();
    void theNextOfTheSameKindIsTried();
    void waitedFor();
    void pulledOut();
    void endedBySignal();
    void pipe();
};

namespace {

const QByteArray hidEcho("//@ tarnwick-run 1\nEcho,select,42 0000 01\n//? 42 0000 01\n");
const QStringList smallDevice{"--hid", "EEEF:1616"};

/// Runs the program to its end on a list of rows.
Ran ranOnHid(const QStringList &options, const QByteArray &list = hidEcho)
{
    return ranOther(TARNWICK_RUN_WITH_HID, options + QStringList{"-"}, list);
}

/// Starts a run without end, and waits for its first verdict.
bool startOnHid(QProcess &process, const QString &list)
{
    process.start(TARNWICK_RUN_WITH_HID, smallDevice + QStringList{"-n", "forever", list});
    while (!process.peek(process.bytesAvailable()).contains("pass")) {
        if (!process.waitForReadyRead(10000)) {
            return false;
        }
    }
    return true;
}

} // namespace

void TestHidRun::devicesAreListed()
{
    const HidFolder hid;
    hid.plugIn("a", {"EEEF:1616", "A7", "/dev/hidraw-a"});
    hid.plugIn("b", {"EEEF:2929", "", "/dev/hidraw-b"});
    const Ran text = ranOther(TARNWICK_RUN_WITH_HID, {"--list-hid"});
    QCOMPARE(text.code, 0);
    QCOMPARE(text.out, QByteArray("EEEF:1616:A7  Register device  /dev/hidraw-a\n"
                                  "EEEF:2929  Register device  /dev/hidraw-b\n"));
    const Ran json = ranOther(TARNWICK_RUN_WITH_HID, {"--list-hid", "--json"});
    const QJsonObject first = QJsonDocument::fromJson(json.out).array().first().toObject();
    QCOMPARE(first, (QJsonObject{{"vid", "EEEF"},
                                 {"pid", "1616"},
                                 {"serial", "A7"},
                                 {"product", "Register device"},
                                 {"path", "/dev/hidraw-a"}}));
}

void TestHidRun::rowsAreAnswered()
{
    const HidFolder hid;
    hid.plugIn("a");
    // The zeros that fill a report are nothing to complain about.
    const Ran result = ranOnHid(smallDevice + QStringList{"-n", "3", "--strict"});
    QVERIFY2(result.code == 0, result.out + result.error);
    QVERIFY2(result.out.contains("3 rows, 3 sent, 3 replies, 0 failures"), result.out);
}

void TestHidRun::aReplyThatIsNotExpectedFails()
{
    const HidFolder hid;
    hid.plugIn("a");
    const Ran result =
        ranOnHid(smallDevice, "//@ tarnwick-run 1\nEcho,select,42 0000 01\n//? 43 **\n");
    QCOMPARE(result.code, 1);
    QVERIFY2(result.out.contains("expected 43 **, got 42 00 00 01"), result.out);
}

void TestHidRun::aReplyThatDoesntComeFails()
{
    const HidFolder hid;
    hid.plugIn("a");
    const Ran result = ranOnHid(smallDevice, hidEcho + "//+ **  within 50\n");
    QCOMPARE(result.code, 1);
    QVERIFY2(result.out.contains("expected **, got nothing within 50.0 ms"), result.out);
}

void TestHidRun::theSerialNumberChoosesTheDevice()
{
    const HidFolder hid;
    hid.plugIn("a", {"EEEF:1616", "A7", "/dev/hidraw-a"});
    hid.plugIn("b", {"EEEF:1616", "A8", "/dev/hidraw-b"});
    QCOMPARE(ranOnHid({"--hid", "eeef:1616:A8"}).code, 0);
    QCOMPARE(hid.written("a").size(), 0);
    QCOMPARE(hid.written("b").size(), 1);
}

void TestHidRun::noDeviceWithThatSerialNumber()
{
    const HidFolder hid;
    hid.plugIn("a", {"EEEF:1616", "A7"});
    const Ran result = ranOnHid({"--hid", "EEEF:1616:A9"});
    QCOMPARE(result.code, 3);
    QVERIFY2(result.error.contains(
                 "No HID device VID_EEEF&PID_1616 with the serial number A9 is attached."),
             result.error);
}

void TestHidRun::reportsHaveTheirIdAndSize()
{
    const HidFolder hid;
    hid.plugIn("a");
    const Ran result =
        ranOnHid(smallDevice + QStringList{"--report-id", "7", "--report-size", "16"});
    QVERIFY2(result.code == 0, result.out + result.error);
    QCOMPARE(hid.written("a"),
             QVector<QByteArray>{QByteArray::fromHex("075AA50442000001").leftJustified(17, '\0')});
}

void TestHidRun::aKnownDeviceHasItsReportSize()
{
    const HidFolder hid;
    hid.plugIn("small");
    hid.plugIn("large", {"EEEF:2929", "", "/dev/hidraw-large"});
    QCOMPARE(ranOnHid(smallDevice).code, 0);
    QCOMPARE(ranOnHid({"--hid", "EEEF:2929"}).code, 0);
    QCOMPARE(hid.written("small").value(0).size(), 65);
    QCOMPARE(hid.written("large").value(0).size(), 513);
}

void TestHidRun::theDeviceIdFileTellsTheReportSize()
{
    const HidFolder hid;
    const PublicProgram program(TARNWICK_RUN_WITH_HID);
    program.folder().file("VID_EEEF,PID_1616,32\n", "hidDeviceID.ini");
    hid.plugIn("a");
    QCOMPARE(ranOther(program.path(), smallDevice + QStringList{"-"}, hidEcho).code, 0);
    QCOMPARE(hid.written("a").value(0).size(), 33);
}

void TestHidRun::longFramesTakeSeveralReports()
{
    const HidFolder hid;
    hid.plugIn("a");
    const QByteArray payload = "42 0000 " + QByteArray("A1").repeated(100);
    const Ran result = ranOnHid(smallDevice, "//@ tarnwick-run 1\nLong,select," + payload +
                                                 "\n//? " + payload + "\n");
    QVERIFY2(result.code == 0, result.out + result.error);
    QCOMPARE(hid.written("a").size(), 2);
}

void TestHidRun::refused()
{
    const HidFolder hid;
    hid.plugIn("a", {"EEEF:1616", "", "/dev/hidraw-of-a-test", true});
    const Ran result = ranOnHid(smallDevice);
    QCOMPARE(result.code, 3);
    QVERIFY2(result.error.contains("/dev/hidraw-of-a-test: "), result.error);
    QCOMPARE(result.out, QByteArray());
}

/// For root there is no such thing, so somebody else runs the program.
void TestHidRun::notPermitted()
{
    const HidFolder hid;
    const PublicProgram program(TARNWICK_RUN_WITH_HID);
    const ListFolder folder;
    const QString node = folder.file({}, "hidraw");
    hid.plugIn("a", {"EEEF:1616", "", node});
    QVERIFY(QFile::setPermissions(node, {}));
    QVERIFY(openToEverybody(folder.path(".")));
    QVERIFY(openToEverybody(qEnvironmentVariable("TARNWICK_TEST_HID")));
    const OrdinaryUser user;
    QVERIFY(user.isInForce());
    const Ran result = ranOther(program.path(), smallDevice + QStringList{"-"}, hidEcho);
    QCOMPARE(result.code, 3);
    QVERIFY2(result.error.contains("Permission denied. A udev rule helps: copy 70-tarnwick.rules"),
             result.error);
}

void TestHidRun::theNextOfTheSameKindIsTried()
{
    const HidFolder hid;
    hid.plugIn("a", {"EEEF:1616", "", "/dev/hidraw-a", true});
    hid.plugIn("b", {"EEEF:1616", "", "/dev/hidraw-b"});
    QCOMPARE(ranOnHid(smallDevice).code, 0);
    QCOMPARE(hid.written("b").size(), 1);
}

void TestHidRun::waitedFor()
{
    const HidFolder hid;
    const ListFolder folder;
    QCOMPARE(ranOnHid(smallDevice).code, 3);
    QProcess process;
    process.start(TARNWICK_RUN_WITH_HID,
                  smallDevice + QStringList{"--wait-link", "60", folder.file(hidEcho)});
    QVERIFY(process.waitForStarted());
    QVERIFY(!process.waitForFinished(300));
    hid.plugIn("a");
    QCOMPARE(endOf(process).code, 0);
}

void TestHidRun::pulledOut()
{
    const HidFolder hid;
    const ListFolder folder;
    hid.plugIn("a");
    QProcess process;
    QVERIFY(startOnHid(process, folder.file(hidEcho)));
    hid.pullOut("a");
    const Ran result = endOf(process);
    QCOMPARE(result.code, 4);
    QVERIFY2(result.out.contains("LOST  001 Echo"), result.out);
    QVERIFY2(result.out.endsWith("the link was lost\n"), result.out);
}

void TestHidRun::endedBySignal()
{
    const HidFolder hid;
    const ListFolder folder;
    hid.plugIn("a");
    QProcess process;
    QVERIFY(startOnHid(process, folder.file(hidEcho)));
    ::kill(static_cast<pid_t>(process.processId()), SIGINT);
    QCOMPARE(endOf(process).code, 130);
}

void TestHidRun::pipe()
{
    const HidFolder hid;
    hid.plugIn("a");
    const Ran result = ranOther(TARNWICK_RUN_WITH_HID, smallDevice + QStringList{"--pipe"},
                                "Echo,42 0000 01 //? 42 **\nRead,03 0010 00 01\n");
    QCOMPARE(result.code, 0);
    const QList<QByteArray> lines = result.out.split('\n');
    QCOMPARE(QJsonDocument::fromJson(lines.value(0)).object().value("verdict").toString(),
             QString("pass"));
    QCOMPARE(QJsonDocument::fromJson(lines.value(1)).object().value("replies").toArray(),
             QJsonArray{"0300010010"});
}

QTEST_GUILESS_MAIN(TestHidRun)

#include "tst_hidrun.moc"

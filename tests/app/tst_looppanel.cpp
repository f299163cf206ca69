#include "app/commandarea.h"
#include "app/hidtab.h"
#include "app/looparea.h"
#include "app/looppanel.h"
#include "app/serialtab.h"
#include "fakehid.h"
#include "session/session.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest>

Q_DECLARE_METATYPE(LinkMode)

/// What rests while the loop runs, without the window.
class TestLoopPanel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void timesAreTypedInMilliseconds_data();
    void timesAreTypedInMilliseconds();
    void aRunningLoopRestsItsLinksWidgets_data();
    void aRunningLoopRestsItsLinksWidgets();
    void aStopBringsAllBack_data();
    void aStopBringsAllBack();
    void nothingToSendBringsTheSerialTabBackAlone();
    void aLoopOfTheSessionIsShown();
};

namespace {

const QByteArray loopDevice = "fake#VID_EEEF&PID_1616#1";

const QStringList restingWithAnyLink{"lineEdit_StepValue",
                                     "lineEdit_CycleTime",
                                     "lineEdit_Repeat",
                                     "pushButton_LoadCommand",
                                     "pushButton_SaveCommand",
                                     "pushButton_ClearCommand",
                                     "saveMessages"};
const QStringList restingOfSerial{"pushButton_OpenCom", "pushButton_SendAll", "checkBox_CRC_EN",
                                  "lineEdit_SBytes"};
const QStringList restingOfHid{"pushButton_ConnectHID", "pushButton_SendAll_2", "checkBox_CRC_EN_2",
                               "lineEdit_SBytes_2"};

/// The pieces of a window, side by side, and a session whose loop they follow.
class LoopPieceBench
{
public:
    LoopPieceBench()
    {
        tabs->addTab(serial, "Uart");
        tabs->addTab(hid, "HID");
        saveMessages->setObjectName("saveMessages");
        panel.follow(session);
    }

    QLineEdit *field(const char *name) const { return top.findChild<QLineEdit *>(name); }
    QString caption() const
    {
        return top.findChild<QPushButton *>("pushButton_Start_Loop")->text();
    }

    /// The widgets that are disabled by themselves, whatever they stand in.
    QStringList resting() const
    {
        QStringList names;
        for (const QString &name : restingWithAnyLink + restingOfSerial + restingOfHid) {
            if (top.findChild<QWidget *>(name)->testAttribute(Qt::WA_ForceDisabled)) {
                names.append(name);
            }
        }
        return names;
    }

    QTemporaryDir folder;
    QWidget top;
    QTabWidget *tabs = new QTabWidget(&top);
    SerialTab *serial = new SerialTab;
    HidTab *hid = new HidTab;
    LoopArea *loop = new LoopArea(&top);
    CommandArea *commands = new CommandArea(&top);
    QPushButton *saveMessages = new QPushButton(&top);
    Session session{folder.filePath("hidDeviceID.ini"), {}};
    LoopPanel panel{{*loop, *tabs, *serial, *hid, *commands, *saveMessages}};
};

} // namespace

void TestLoopPanel::init()
{
    FakeHid::instance().reset();
    FakeHid::instance().addDevice(loopDevice, 0xEEEF, 0x1616);
}

void TestLoopPanel::timesAreTypedInMilliseconds_data()
{
    QTest::addColumn<int>("ms");

    QTest::newRow("250") << 250;
    QTest::newRow("1x2") << 12;
    QTest::newRow("10001") << 1000;
    QTest::newRow("") << 0;
}

void TestLoopPanel::timesAreTypedInMilliseconds()
{
    QFETCH(int, ms);
    const LoopPieceBench bench;
    QCOMPARE(bench.loop->timing().intervalMs, 1000);
    QCOMPARE(bench.loop->timing().cycleDelayMs, 1000);
    bench.field("lineEdit_StepValue")->clear();
    QTest::keyClicks(bench.field("lineEdit_StepValue"), QTest::currentDataTag());
    QCOMPARE(bench.loop->timing().intervalMs, ms);
    QCOMPARE(bench.loop->timing().cycleDelayMs, 1000);
    bench.field("lineEdit_CycleTime")->clear();
    QTest::keyClicks(bench.field("lineEdit_CycleTime"), QTest::currentDataTag());
    QCOMPARE(bench.loop->timing().cycleDelayMs, ms);
}

void TestLoopPanel::aRunningLoopRestsItsLinksWidgets_data()
{
    QTest::addColumn<LinkMode>("mode");
    QTest::addColumn<QStringList>("ofTheLink");

    QTest::newRow("serial") << LinkMode::Uart << restingOfSerial;
    QTest::newRow("HID") << LinkMode::Hid << restingOfHid;
}

void TestLoopPanel::aRunningLoopRestsItsLinksWidgets()
{
    QFETCH(LinkMode, mode);
    QFETCH(QStringList, ofTheLink);
    LoopPieceBench bench;
    bench.session.use(mode);
    QCOMPARE(bench.resting(), QStringList());
    emit bench.session.loop().started();
    QCOMPARE(bench.resting(), restingWithAnyLink + ofTheLink);
    QVERIFY(!bench.tabs->isEnabled());
    QCOMPARE(bench.caption(), QString("Sending..."));
}

void TestLoopPanel::aStopBringsAllBack_data()
{
    aRunningLoopRestsItsLinksWidgets_data();
}

void TestLoopPanel::aStopBringsAllBack()
{
    QFETCH(LinkMode, mode);
    LoopPieceBench bench;
    bench.session.use(mode);
    emit bench.session.loop().started();
    emit bench.session.loop().stopped();
    QCOMPARE(bench.resting(), QStringList());
    QVERIFY(bench.tabs->isEnabled());
    QCOMPARE(bench.caption(), QString("Auto Send"));
}

void TestLoopPanel::nothingToSendBringsTheSerialTabBackAlone()
{
    LoopPieceBench bench;
    bench.session.use(LinkMode::Hid);
    emit bench.session.loop().started();
    bench.serial->setResting(true);
    emit bench.session.loop().foundNothing();
    QCOMPARE(bench.resting(), restingOfHid);
    QVERIFY(!bench.tabs->isEnabled());
    QCOMPARE(bench.caption(), QString("Auto Send"));
}

void TestLoopPanel::aLoopOfTheSessionIsShown()
{
    LoopPieceBench bench;
    bench.session.setHeaderText("0x5A,0xA5");
    bench.session.links().hid().readDeviceTypes();
    bench.session.use(LinkMode::Hid);
    QVERIFY(bench.session.links().hid().open(loopDevice, 0));
    bench.session.loop().start({{1, "010300"}}, bench.loop->timing());
    QCOMPARE(bench.caption(), QString("Sending..."));
    bench.session.loop().stop();
    QCOMPARE(bench.caption(), QString("Auto Send"));
}

QTEST_MAIN(TestLoopPanel)
#include "tst_looppanel.moc"

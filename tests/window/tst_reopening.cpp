#include "comingdevices.h"
#include "fakesystemwatch.h"
#include "links/serial/seriallink.h"
#include "serialwindow.h"
#include "testfiles.h"
#include "windowfile.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QtTest>

#include <functional>
#include <utility>

/// "Reopen": a port that was lost is opened again when it is back.
class TestReopening : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void itIsOffAtFirst();
    void aPortThatIsBackIsOpenedAgain();
    void aPortThatIsAnnouncedMayRefuseAtFirst();
    void whatIsDecidedMeanwhileHolds_data();
    void whatIsDecidedMeanwhileHolds();
    void aClosedPortStaysClosed();
    void itIsRemembered();
};

namespace {

QString linksFolder()
{
    return QCoreApplication::applicationDirPath() + "/ports";
}

/// A window with "Reopen" checked and a port open whose name comes and goes.
class ReopenWindow : public SerialWindow
{
public:
    explicit ReopenWindow(QString portName = linksFolder() + "/device")
        : name(std::move(portName))
    {
        click(check("checkBox_Reopen"));
        plugIn();
        combo("comboBox_Comm")->addItem(name);
        pick(combo("comboBox_Comm"), combo("comboBox_Comm")->count() - 1);
        forgetArrival();
    }

    static void click(QCheckBox *box)
    {
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(14, box->height() / 2));
    }

    void plugIn()
    {
        device = std::make_unique<TestPort>();
        QFile::link(device->path(), name);
    }

    void pullOut()
    {
        QFile::remove(name);
        device->unplug();
    }

    QString status() const
    {
        return find<QLabel>("label_Status")->text().remove('\n').remove(QChar(0x200B));
    }

    QStringList events() const
    {
        QStringList texts;
        for (const LogRecord &record : records().records()) {
            if (record.kind == LogRecord::Kind::Event) {
                texts.append(record.source + ' ' + record.text.english.section(' ', 0, 0));
            }
        }
        return texts;
    }

    const SerialLink &serial() { return *window().findChild<SerialLink *>(); }

    /// What reopens a port does so from the event loop, before the lists are read anew.
    void passWhatWouldHaveOpenedIt()
    {
        QComboBox *ports = combo("comboBox_Comm");
        ports->setItemText(0, "before");
        QTRY_COMPARE(ports->findText("before"), -1);
    }

    MessageBoxes boxes;
    QString name;
    std::unique_ptr<TestPort> device;

private:
    /// A link is watched, other names are announced by the test.
    void forgetArrival()
    {
        QTRY_VERIFY(QFileInfo(name).path() != linksFolder() || events().contains("Uart Insert"));
        records().clear();
    }
};

using Choice = std::function<void(ReopenWindow &)>;

} // namespace

Q_DECLARE_METATYPE(Choice)

void TestReopening::init()
{
    attachBoth();
    QFile::remove(windowFile());
    QDir(linksFolder()).removeRecursively();
    QDir().mkpath(linksFolder());
}

void TestReopening::cleanup()
{
    init();
}

void TestReopening::itIsOffAtFirst()
{
    ReopenWindow window;
    ReopenWindow::click(window.check("checkBox_Reopen"));
    QVERIFY(!window.check("checkBox_Reopen")->isChecked());
    QVERIFY(window.looksOpen());
    window.pullOut();
    QTRY_COMPARE(window.boxes.texts().size() + window.events().size(), 1);
    QVERIFY(!window.looksOpen());
    QVERIFY(!window.status().contains("opened again"));
    window.plugIn();
    QTRY_VERIFY(window.events().contains("Uart Insert"));
    window.passWhatWouldHaveOpenedIt();
    QVERIFY(!window.looksOpen());
}

void TestReopening::aPortThatIsBackIsOpenedAgain()
{
    ReopenWindow window;
    window.edit("lineEdit_StepValue")->setText("5");
    window.edit("lineEdit_CycleTime")->setText("5");
    window.setRow(0, "03", "0000", "0001");
    window.checkRow(0);
    QVERIFY(window.looksOpen());
    window.SerialWindow::click("pushButton_Start_Loop");
    QTRY_VERIFY(!window.device->received().isEmpty());

    window.pullOut();
    QTRY_VERIFY(!window.looksOpen());
    QTRY_VERIFY(window.events().contains("Uart Remove"));
    QTRY_COMPARE(window.combo("comboBox_Comm")->findText(window.name), -1);
    QVERIFY2(window.status().contains("It is opened again when it is back"),
             qPrintable(window.status()));
    QCOMPARE(window.button("pushButton_Start_Loop")->text(), QString("Auto Send"));

    window.plugIn();
    QTRY_VERIFY(window.looksOpen());
    QCOMPARE(window.combo("comboBox_Comm")->currentText(), window.name);
    QVERIFY2(window.status().contains("was lost and is back"), qPrintable(window.status()));
    const auto sortedEvents = [&window] {
        QStringList events = window.events();
        events.sort();
        return events;
    };
    QTRY_COMPARE(sortedEvents(),
                 (QStringList{"Uart Insert", "Uart Lost", "Uart Remove", "Uart Reopen"}));
    QCOMPARE(window.boxes.texts(), QStringList());
    // The loop is not started again.
    QCOMPARE(window.button("pushButton_Start_Loop")->text(), QString("Auto Send"));
    window.clickSend(0);
    QTRY_COMPARE(window.device->received(), QByteArray::fromHex("5AA5050300000001"));
}

/// As with udev, which announces a port, and others that listen to it change its permissions.
void TestReopening::aPortThatIsAnnouncedMayRefuseAtFirst()
{
    const QTemporaryDir folder;
    ReopenWindow window(folder.filePath("ttyUSB0"));
    QVERIFY(window.looksOpen());
    window.pullOut();
    FakeSystem::instance().pullOut(portDevice(window.name));
    QVERIFY(!window.looksOpen());
    FakeSystem::instance().plugIn(portDevice(window.name));
    QTRY_VERIFY(!window.serial().failure().words.isEmpty());
    QVERIFY(!window.looksOpen());
    window.plugIn();
    QTRY_VERIFY(window.looksOpen());
    QCOMPARE(window.boxes.texts(), QStringList());
}

void TestReopening::whatIsDecidedMeanwhileHolds_data()
{
    QTest::addColumn<Choice>("choose");

    const auto row = [](const char *name, const Choice &choose) { QTest::newRow(name) << choose; };
    row("another baud rate",
        [](ReopenWindow &window) { SerialWindow::pick(window.combo("comboBox_Baudrate"), 3); });
    row("another parity",
        [](ReopenWindow &window) { SerialWindow::pick(window.combo("comboBox_Parity"), 1); });
    row("a typed rate", [](ReopenWindow &window) {
        SerialWindow::pick(window.combo("comboBox_Baudrate"), 0);
        QTest::keyClicks(window.combo("comboBox_Baudrate")->lineEdit(), "250000");
    });
    row("another port", [](ReopenWindow &window) {
        QComboBox *ports = window.combo("comboBox_Comm");
        ports->addItem("/nowhere/port");
        SerialWindow::pick(ports, ports->count() - 1);
    });
    row("the other tab", [](ReopenWindow &window) {
        window.find<QTabWidget>("tabWidget")->setCurrentIndex(1);
        window.find<QTabWidget>("tabWidget")->setCurrentIndex(0);
    });
    row("not to open it again",
        [](ReopenWindow &window) { ReopenWindow::click(window.check("checkBox_Reopen")); });
}

void TestReopening::whatIsDecidedMeanwhileHolds()
{
    QFETCH(Choice, choose);
    ReopenWindow window;
    window.pullOut();
    QTRY_VERIFY(window.events().contains("Uart Remove"));
    QTRY_VERIFY(window.status().contains("opened again"));
    choose(window);
    QVERIFY2(!window.status().contains("opened again"), qPrintable(window.status()));
    window.plugIn();
    QTRY_VERIFY(window.events().contains("Uart Insert"));
    window.passWhatWouldHaveOpenedIt();
    QVERIFY(!window.looksOpen());
    QVERIFY(!window.events().contains("Uart Reopen"));
}

void TestReopening::aClosedPortStaysClosed()
{
    ReopenWindow window;
    QVERIFY(window.looksOpen());
    window.SerialWindow::click("pushButton_OpenCom");
    QVERIFY(!window.looksOpen());
    window.pullOut();
    QTRY_VERIFY(window.events().contains("Uart Remove"));
    window.plugIn();
    QTRY_VERIFY(window.events().contains("Uart Insert"));
    window.passWhatWouldHaveOpenedIt();
    QVERIFY(!window.looksOpen());
}

void TestReopening::itIsRemembered()
{
    for (const bool reopens : {true, false}) {
        {
            SerialWindow window;
            QCOMPARE(window.check("checkBox_Reopen")->isChecked(), !reopens);
            ReopenWindow::click(window.check("checkBox_Reopen"));
            QVERIFY(window.window().close());
        }
        const SerialWindow window;
        QCOMPARE(window.check("checkBox_Reopen")->isChecked(), reopens);
    }
    QVERIFY(!textIn(windowFile()).contains("reopen"));
}

QTEST_MAIN(TestReopening)
#include "tst_reopening.moc"

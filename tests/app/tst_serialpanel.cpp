#include "app/headerfield.h"
#include "app/serialpanel.h"
#include "app/serialtab.h"
#include "testport.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

/// The "Uart" tab and its link, without the window.
class TestSerialPanel : public QObject
{
    Q_OBJECT

private slots:
    void theBoxesSayHowThePortIsOpened();
    void aTypedRateIsUsed();
    void theButtonOpensAndCloses();
    void anOpenPortsSettingsRest();
    void aPortThatIsLostLooksClosed();
    void aPortThatDoesNotOpenIsTold();
    void theChosenPortStaysChosen();
    void aNewListTellsNobody();
    void aRunningLoopLeavesTheSettingsAlone();
    void theBoxSaysWhetherThereIsACrc();
};

namespace {

/// The tab, shown by itself, and the panel behind it; its button does what the window has it do.
class SerialTabBench
{
public:
    SerialTabBench()
    {
        QObject::connect(button(), &QPushButton::clicked, &panel, &SerialPanel::toggle);
        QObject::connect(box("comboBox_Baudrate"), QOverload<int>::of(&QComboBox::activated), &tab,
                         &SerialTab::prepareBaudRate);
        tab.show();
        tab.activateWindow();
    }

    /// Lists links to the ports, named by number.
    void list(const QVector<const TestPort *> &ports)
    {
        for (int i = 0; i < ports.size(); ++i) {
            QFile::link(ports[i]->path(), linkTo(i));
        }
        panel.refreshPorts(folder.path());
    }

    QString linkTo(int port) const { return folder.filePath(QString("port%1").arg(port)); }
    QComboBox *box(const char *name) const { return tab.findChild<QComboBox *>(name); }
    QPushButton *button() const { return tab.findChild<QPushButton *>("pushButton_OpenCom"); }
    void click() const { QTest::mouseClick(button(), Qt::LeftButton); }
    bool looksOpen() const { return button()->text() == "Linking..."; }

    QTemporaryDir folder;
    SerialTab tab;
    SerialLink link{4096};
    SerialPanel panel{tab, link};
};

/// Goes to an entry of a box by its arrow keys.
void choose(QComboBox *box, const QString &text)
{
    const int wanted = box->findText(text);
    QVERIFY2(wanted >= 0, qPrintable(text));
    while (box->currentIndex() != wanted) {
        QTest::keyClick(box, box->currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
    }
}

} // namespace

void TestSerialPanel::theBoxesSayHowThePortIsOpened()
{
    const TestPort first;
    const TestPort second;
    SerialTabBench bench;
    bench.list({&first, &second});
    choose(bench.box("comboBox_Comm"), bench.linkTo(1));
    choose(bench.box("comboBox_Baudrate"), "9600");
    choose(bench.box("comboBox_DataBit"), "7");
    choose(bench.box("comboBox_StopBit"), "2");
    choose(bench.box("comboBox_Parity"), "Even");
    bench.click();
    QVERIFY(bench.link.isOpen());
    const SerialSettings &settings = bench.link.settings();
    QCOMPARE(settings.portName, bench.linkTo(1));
    QCOMPARE(settings.baudRate, 9600);
    QCOMPARE(settings.dataBits, QSerialPort::Data7);
    QCOMPARE(settings.stopBits, QSerialPort::TwoStop);
    QCOMPARE(settings.parity, QSerialPort::EvenParity);
}

void TestSerialPanel::aTypedRateIsUsed()
{
    const SerialTabBench bench;
    QComboBox *rates = bench.box("comboBox_Baudrate");
    choose(rates, "custom");
    QVERIFY(rates->isEditable());
    QTest::keyClicks(rates->lineEdit(), "250x000");
    QCOMPARE(bench.tab.settings().baudRate, 250000);
    QTest::keyClick(rates, Qt::Key_Down);
    QVERIFY(!rates->isEditable());
    QCOMPARE(bench.tab.settings().baudRate, rates->currentText().toInt());
}

void TestSerialPanel::theButtonOpensAndCloses()
{
    const TestPort port;
    SerialTabBench bench;
    bench.list({&port});
    choose(bench.box("comboBox_Comm"), bench.linkTo(0));
    QVERIFY(!bench.looksOpen());
    bench.click();
    QVERIFY(bench.link.isOpen());
    QVERIFY(bench.looksOpen());
    bench.click();
    QVERIFY(!bench.link.isOpen());
    QVERIFY(!bench.looksOpen());
}

void TestSerialPanel::anOpenPortsSettingsRest()
{
    const TestPort port;
    SerialTabBench bench;
    QVERIFY(QTest::qWaitForWindowActive(&bench.tab));
    bench.list({&port});
    choose(bench.box("comboBox_Comm"), bench.linkTo(0));
    bench.box("comboBox_Comm")->setFocus();
    bench.panel.open();
    QCOMPARE(QApplication::focusWidget(), bench.button());
    for (const QComboBox *box : bench.tab.findChildren<QComboBox *>()) {
        QVERIFY2(!box->isEnabled(), qPrintable(box->objectName()));
    }
    QVERIFY(bench.tab.header().isEnabled());
    bench.click();
    for (const QComboBox *box : bench.tab.findChildren<QComboBox *>()) {
        QVERIFY2(box->isEnabled(), qPrintable(box->objectName()));
    }
}

void TestSerialPanel::aPortThatIsLostLooksClosed()
{
    TestPort port;
    SerialTabBench bench;
    bench.list({&port});
    choose(bench.box("comboBox_Comm"), bench.linkTo(0));
    bench.click();
    QVERIFY(bench.looksOpen());
    // Whoever follows the link closes it when it is lost.
    QObject::connect(&bench.link, &Link::lost, &bench.link, &Link::close);
    port.unplug();
    QTRY_VERIFY(!bench.looksOpen());
    QVERIFY(bench.box("comboBox_Comm")->isEnabled());
}

void TestSerialPanel::aPortThatDoesNotOpenIsTold()
{
    SerialTabBench bench;
    QSignalSpy failed(&bench.panel, &SerialPanel::failed);
    bench.tab.showPorts({"/nowhere/port"}, 0);
    bench.click();
    QCOMPARE(failed.count(), 1);
    QVERIFY(failed[0][0].toString().contains("/nowhere/port"));
    QVERIFY(!bench.looksOpen());
}

void TestSerialPanel::theChosenPortStaysChosen()
{
    const TestPort first;
    const TestPort second;
    SerialTabBench bench;
    bench.list({&first, &second});
    choose(bench.box("comboBox_Comm"), bench.linkTo(1));
    bench.click();
    bench.click();
    QFile::remove(bench.linkTo(0));
    bench.panel.refreshPorts(bench.folder.path());
    QCOMPARE(bench.box("comboBox_Comm")->currentText(), bench.linkTo(1));
}

void TestSerialPanel::aNewListTellsNobody()
{
    const TestPort port;
    SerialTabBench bench;
    QComboBox *ports = bench.box("comboBox_Comm");
    const QSignalSpy activated(ports, QOverload<int>::of(&QComboBox::activated));
    const QSignalSpy changed(ports, QOverload<int>::of(&QComboBox::currentIndexChanged));
    bench.list({&port});
    QVERIFY(ports->findText(bench.linkTo(0)) >= 0);
    QCOMPARE(ports->itemData(ports->findText(bench.linkTo(0)), Qt::ToolTipRole).toString(),
             bench.linkTo(0));
    QCOMPARE(activated.count() + changed.count(), 0);
    QVERIFY(!bench.link.isOpen());
}

void TestSerialPanel::aRunningLoopLeavesTheSettingsAlone()
{
    SerialTabBench bench;
    bench.tab.setResting(true);
    QVERIFY(!bench.button()->isEnabled());
    QVERIFY(!bench.tab.header().isEnabled());
    QVERIFY(!bench.tab.findChild<QPushButton *>("pushButton_SendAll")->isEnabled());
    QVERIFY(!bench.tab.findChild<QCheckBox *>("checkBox_CRC_EN")->isEnabled());
    QVERIFY(bench.box("comboBox_Comm")->isEnabled());
    bench.tab.enableCrcBox();
    QVERIFY(bench.tab.findChild<QCheckBox *>("checkBox_CRC_EN")->isEnabled());
    bench.tab.setResting(false);
    QVERIFY(bench.button()->isEnabled());
}

void TestSerialPanel::theBoxSaysWhetherThereIsACrc()
{
    const SerialTabBench bench;
    auto *box = bench.tab.findChild<QCheckBox *>("checkBox_CRC_EN");
    QVERIFY(!bench.tab.wantsCrc());
    QTest::keyClick(box, Qt::Key_Space);
    QVERIFY(bench.tab.wantsCrc());
}

QTEST_MAIN(TestSerialPanel)
#include "tst_serialpanel.moc"

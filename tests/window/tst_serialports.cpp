#include "serialwindow.h"

#include <QAbstractItemView>
#include <QDir>
#include <QSerialPort>
#include <QSerialPortInfo>
#include <QTemporaryDir>
#include <QtTest>

class TestSerialPorts : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void openPortRestsTheBoxes();
    void openFailureIsTold_data();
    void openFailureIsTold();
    void aBusyPortFails();
    void choosingAnotherPortSwitches();
    void choosingABadPortClosesTheOther();
    void theOtherTabClosesThePort();
    void portsAreListedAfterAWhile();
    void linksAreListedBehindTheSystemsPorts();
    void refreshSelectsTheChosenPortAgain();
    void refreshOpensNothing();
    void anOpenListShowsWhatCame();
    void aLostPortIsNoLongerListed();
    void aLostPortIsToldOnce_data();
    void aLostPortIsToldOnce();

private:
    QDir m_ports{QCoreApplication::applicationDirPath() + "/ports"};
};

namespace {

const QStringList boxNames{"comboBox_Comm", "comboBox_Parity", "comboBox_Baudrate",
                           "comboBox_DataBit", "comboBox_StopBit"};

} // namespace

void TestSerialPorts::cleanup()
{
    for (const QString &name : m_ports.entryList(QDir::AllEntries | QDir::System)) {
        m_ports.remove(name);
    }
}

void TestSerialPorts::openPortRestsTheBoxes()
{
    SerialWindow window;
    const TestPort port;
    window.open(port);
    QVERIFY(window.looksOpen());
    for (const QString &name : boxNames) {
        QVERIFY(!window.combo(qPrintable(name))->isEnabled());
    }
    window.click("pushButton_OpenCom");
    QVERIFY(!window.looksOpen());
    QVERIFY(!window.port()->isOpen());
    for (const QString &name : boxNames) {
        QVERIFY(window.combo(qPrintable(name))->isEnabled());
    }
}

void TestSerialPorts::openFailureIsTold_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("no port in the list") << QString();
    QTest::newRow("missing") << "/nowhere/port";
    QTest::newRow("no terminal") << "/dev/null";
}

void TestSerialPorts::openFailureIsTold()
{
    QFETCH(QString, name);
    MessageBoxes boxes;
    SerialWindow window;
    bool hadParent = true;
    connect(&boxes, &MessageBoxes::shown, this,
            [&] { hadParent = QApplication::activeModalWidget()->parent() != nullptr; });
    QComboBox *ports = window.combo("comboBox_Comm");
    ports->clear();
    if (!name.isEmpty()) {
        ports->addItem(name);
    }
    window.click("pushButton_OpenCom");
    QCOMPARE(boxes.texts(), QStringList{"Open fail"});
    QCOMPARE(boxes.titles(), QStringList{"UART"});
    QVERIFY(!hadParent);
    QVERIFY(!window.looksOpen());
    for (const QString &box : boxNames) {
        QVERIFY(window.combo(qPrintable(box))->isEnabled());
    }
}

void TestSerialPorts::aBusyPortFails()
{
    MessageBoxes boxes;
    SerialWindow window;
    const TestPort port;
    QSerialPort other(port.path());
    QVERIFY(other.open(QIODevice::ReadWrite));
    window.open(port);
    QCOMPARE(boxes.texts(), QStringList{"Open fail"});
    other.close();
    window.click("pushButton_OpenCom");
    QVERIFY(window.looksOpen());
}

void TestSerialPorts::choosingAnotherPortSwitches()
{
    SerialWindow window;
    TestPort former;
    TestPort next;
    window.open(former);
    QComboBox *ports = window.combo("comboBox_Comm");
    ports->addItem(next.path());
    SerialWindow::pick(ports, ports->count() - 1);
    QVERIFY(window.looksOpen());
    QVERIFY(next.path().endsWith(window.port()->portName()));
    window.setRow(0, "01", "0300", "01");
    window.sendCurrentRow();
    QTRY_COMPARE(next.received(), QByteArray::fromHex("5AA50401030001"));
    QCOMPARE(former.received(), QByteArray());
}

void TestSerialPorts::choosingABadPortClosesTheOther()
{
    MessageBoxes boxes;
    SerialWindow window;
    const TestPort port;
    window.open(port);
    QComboBox *ports = window.combo("comboBox_Comm");
    ports->addItem("/nowhere/port");
    SerialWindow::pick(ports, ports->count() - 1);
    QCOMPARE(boxes.texts(), QStringList{"Open fail"});
    QVERIFY(!window.looksOpen());
    QVERIFY(ports->isEnabled());
}

void TestSerialPorts::theOtherTabClosesThePort()
{
    SerialWindow window;
    const TestPort port;
    window.open(port);
    auto *tabs = window.find<QTabWidget>("tabWidget");
    tabs->setCurrentIndex(1);
    QVERIFY(!window.looksOpen());
    QVERIFY(!window.port()->isOpen());
    tabs->setCurrentIndex(0);
    QVERIFY(!window.port()->isOpen());
}

void TestSerialPorts::portsAreListedAfterAWhile()
{
    const TestPort port;
    SerialWindow window;
    const QString path = m_ports.absoluteFilePath("device");
    QVERIFY(m_ports.mkpath("."));
    QVERIFY(QFile::link(port.path(), path));
    QComboBox *ports = window.combo("comboBox_Comm");
    QCOMPARE(ports->count(), 0);
    QTRY_VERIFY(ports->findText(path) >= 0);
}

void TestSerialPorts::linksAreListedBehindTheSystemsPorts()
{
    const TestPort port;
    QVERIFY(m_ports.mkpath("."));
    for (const char *name : {"device10", "device2"}) {
        QVERIFY(QFile::link(port.path(), m_ports.filePath(name)));
    }
    QVERIFY(QFile::link("/nowhere", m_ports.filePath("dead")));
    SerialWindow window;
    window.listPorts();
    const QComboBox *ports = window.combo("comboBox_Comm");
    const int systemPorts = QSerialPortInfo::availablePorts().size();
    QCOMPARE(ports->count(), systemPorts + 2);
    QCOMPARE(ports->itemText(systemPorts), m_ports.absoluteFilePath("device2"));
    QCOMPARE(ports->itemText(systemPorts + 1), m_ports.absoluteFilePath("device10"));
}

void TestSerialPorts::refreshSelectsTheChosenPortAgain()
{
    const TestPort port;
    QVERIFY(m_ports.mkpath("."));
    QVERIFY(QFile::link(port.path(), m_ports.filePath("device1")));
    QVERIFY(QFile::link(port.path(), m_ports.filePath("device2")));
    SerialWindow window;
    window.listPorts();
    QComboBox *ports = window.combo("comboBox_Comm");
    const QString chosen = m_ports.absoluteFilePath("device2");
    SerialWindow::pick(ports, ports->findText(chosen));
    QVERIFY(window.looksOpen());
    ports->setCurrentIndex(0);
    window.listPorts();
    QCOMPARE(ports->currentText(), chosen);
    window.click("pushButton_OpenCom");
    ports->setCurrentIndex(0);
    window.listPorts();
    QCOMPARE(ports->currentText(), chosen);
    QVERIFY(m_ports.remove("device2"));
    window.listPorts();
    QCOMPARE(ports->findText(chosen), -1);
    QVERIFY(ports->currentText() != chosen);
}

void TestSerialPorts::refreshOpensNothing()
{
    MessageBoxes boxes;
    const TestPort port;
    QVERIFY(m_ports.mkpath("."));
    QVERIFY(QFile::link(port.path(), m_ports.filePath("device")));
    SerialWindow window;
    window.listPorts();
    window.listPorts();
    QVERIFY(window.combo("comboBox_Comm")->count() > 0);
    QVERIFY(!window.looksOpen());
    QCOMPARE(boxes.texts(), QStringList());
}

void TestSerialPorts::anOpenListShowsWhatCame()
{
    const TestPort port;
    QVERIFY(m_ports.mkpath("."));
    QVERIFY(QFile::link(port.path(), m_ports.filePath("device1")));
    SerialWindow window;
    window.listPorts();
    QComboBox *ports = window.combo("comboBox_Comm");
    ports->setCurrentIndex(ports->count() - 1);
    ports->showPopup();
    QVERIFY(QFile::link(port.path(), m_ports.filePath("device2")));
    window.listPorts();
    const QAbstractItemView *list = ports->view();
    const QModelIndex last = ports->model()->index(ports->count() - 1, 0);
    QVERIFY(list->isVisible());
    QVERIFY(list->visualRect(last).bottom() < list->viewport()->height());
    QCOMPARE(list->currentIndex().row(), ports->currentIndex());
}

void TestSerialPorts::aLostPortIsNoLongerListed()
{
    MessageBoxes boxes;
    TestPort port;
    const QTemporaryDir devices;
    const QString node = devices.filePath("node");
    QVERIFY(QFile::link(port.path(), node));
    QVERIFY(m_ports.mkpath("."));
    const QString path = m_ports.absoluteFilePath("device");
    QVERIFY(QFile::link(node, path));
    SerialWindow window;
    window.listPorts();
    QComboBox *ports = window.combo("comboBox_Comm");
    SerialWindow::pick(ports, ports->findText(path));
    QVERIFY(window.looksOpen());
    // Another program may get a pseudo-terminal of the same name as soon as this one is gone.
    QVERIFY(QFile::remove(node));
    port.unplug();
    QTRY_COMPARE(ports->findText(path), -1);
    QCOMPARE(boxes.texts().size(), 1);
}

void TestSerialPorts::aLostPortIsToldOnce_data()
{
    QTest::addColumn<QString>("activity");

    QTest::newRow("idle") << "idle";
    QTest::newRow("sending") << "sending";
    QTest::newRow("receiving") << "receiving";
    QTest::newRow("in the loop") << "loop";
}

void TestSerialPorts::aLostPortIsToldOnce()
{
    QFETCH(QString, activity);
    MessageBoxes boxes;
    SerialWindow window;
    TestPort port;
    window.open(port);
    window.setRow(0, "01", "0300", "01");
    window.checkRow(0);
    if (activity == "receiving") {
        port.send(QByteArray::fromHex("5AA503030001").repeated(200));
    } else if (activity == "loop") {
        window.edit("lineEdit_StepValue")->setText("0");
        window.edit("lineEdit_CycleTime")->setText("0");
        window.click("pushButton_Start_Loop");
        QTRY_VERIFY(window.messageCount() > 0);
    }
    port.unplug();
    if (activity == "sending") {
        window.sendCurrentRow();
    }
    QTRY_VERIFY(!window.looksOpen());
    QTRY_COMPARE(boxes.texts().size(), 1);
    QVERIFY(boxes.texts().constFirst().contains(port.path()));
    QVERIFY(!window.port()->isOpen());
    QVERIFY(window.combo("comboBox_Comm")->isEnabled());
    QCOMPARE(window.button("pushButton_Start_Loop")->text(), QString("Auto Send"));
    for (int i = 0; i < 100; ++i) {
        QCoreApplication::processEvents();
    }
    QCOMPARE(boxes.texts().size(), 1);
}

QTEST_MAIN(TestSerialPorts)
#include "tst_serialports.moc"

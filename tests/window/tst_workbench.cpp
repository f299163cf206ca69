#include "filedialoguser.h"
#include "testfiles.h"
#include "windowdriver.h"

#include <QClipboard>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

class TestWorkbench : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void closingUnchangedAsksNothing();
    void closingChangedAsksOnce();
    void closingCanSave();
    void savedCommandsAreLoadedAgain();
    void clearingIsNoChange();
    void theLogIsSavedWithoutDeviceRows();
    void selectedLogRowsAreCopied();
    void theEditorWritesIntoItsRow();
    void theEditorOutlivesItsRow();
    void portsThatComeAndGoAreLoggedAndListed();
    void theOpenPortIsClosedWhenItGoes();

private:
    QTemporaryDir m_folder;
};

namespace {

QString workbenchFolder()
{
    return QCoreApplication::applicationDirPath() + "/ports";
}

/// Right-clicks a row's Data cell, dismisses the menu, and opens the direct editor on the row by
/// way of the row menu's slot.
DirectEditor *openEditor(WindowDriver &window, int row)
{
    QTimer::singleShot(0, [] {
        if (QWidget *menu = QApplication::activePopupWidget()) {
            menu->close();
        }
    });
    const QTableWidget *table = window.commands();
    const QPoint cell = table->visualItemRect(table->item(row, CommandColumn::Data)).center();
    QMetaObject::invokeMethod(&window.window(), "tableRegisterContexMenuRequested",
                              Q_ARG(QPoint, cell));
    window.window().findChild<RowEditor *>()->open(row);
    return window.window().findChild<DirectEditor *>();
}

} // namespace

void TestWorkbench::init()
{
    QFile::remove(QCoreApplication::applicationDirPath() + "/debuggerConfig.ini");
    QDir(workbenchFolder()).removeRecursively();
    QDir().mkpath(workbenchFolder());
}

void TestWorkbench::closingUnchangedAsksNothing()
{
    MessageBoxes boxes;
    WindowDriver window;
    window.window().close();
    QVERIFY(!window.window().isVisible());
    QCOMPARE(boxes.texts(), QStringList());
}

void TestWorkbench::closingChangedAsksOnce()
{
    MessageBoxes boxes;
    boxes.answerWith(QMessageBox::No);
    WindowDriver window;
    window.setRow(0, "03", "0000", "0001");
    window.window().close();
    QVERIFY(!window.window().isVisible());
    QCOMPARE(boxes.texts(), QStringList{"Do you want to save your command?"});
    QCOMPARE(boxes.titles(), QStringList{"Message"});
}

void TestWorkbench::closingCanSave()
{
    const QString path = m_folder.filePath("closed.txt");
    MessageBoxes boxes;
    boxes.answerWith(QMessageBox::Yes);
    const FileDialogUser user(path);
    WindowDriver window;
    window.setRow(0, "03", "0000", "0001");
    window.window().close();
    QVERIFY(!window.window().isVisible());
    QCOMPARE(contentOf(path), QByteArray(",unselect,03 0000 0001\n"));
    const QSettings settings(QCoreApplication::applicationDirPath() + "/debuggerConfig.ini",
                             QSettings::IniFormat);
    QCOMPARE(settings.value("/set/LastSavePath").toString(), m_folder.path() + "/");
}

void TestWorkbench::savedCommandsAreLoadedAgain()
{
    const QString path = m_folder.filePath("commands.txt");
    MessageBoxes boxes;
    const FileDialogUser user(path);
    WindowDriver window;
    window.setRow(0, "5A", "", "01");
    window.commands()->item(0, CommandColumn::Description)->setText("Row");
    window.setRow(2, "++", "", "500");
    window.checkRow(2);
    window.click("pushButton_SaveCommand");
    QCOMPARE(contentOf(path), QByteArray("Row,unselect,5A %%%% 01\n,select,++  500\n"));

    window.click("pushButton_ClearCommand");
    QCOMPARE(window.commands()->item(0, CommandColumn::Cmd)->text(), QString());
    window.click("pushButton_LoadCommand");
    QCOMPARE(window.commands()->rowCount(), 9);
    const auto text = [&window](int row, int column) {
        return window.commands()->item(row, column)->text();
    };
    QCOMPARE(text(0, CommandColumn::Description), QString("Row"));
    QCOMPARE(text(0, CommandColumn::Addr), QString());
    QCOMPARE(text(0, CommandColumn::Data), QString("01"));
    QVERIFY(!text(0, CommandColumn::Crc).isEmpty());
    QCOMPARE(text(0, CommandColumn::DataType), QString());
    QCOMPARE(text(1, CommandColumn::Cmd), QString("++"));
    QCOMPARE(text(1, CommandColumn::Data), QString("500 "));
    QCOMPARE(text(2, CommandColumn::DataType), QString("short"));
    window.window().close();
    QCOMPARE(boxes.texts(), QStringList());
}

void TestWorkbench::clearingIsNoChange()
{
    MessageBoxes boxes;
    WindowDriver window;
    window.setRow(0, "03", "0000", "0001");
    window.click("pushButton_ClearCommand");
    window.window().close();
    QCOMPARE(boxes.texts(), QStringList());
}

void TestWorkbench::theLogIsSavedWithoutDeviceRows()
{
    const QString path = m_folder.filePath("log.txt");
    const FileDialogUser user(path);
    WindowDriver window;
    TestPort port;
    window.open(port);
    window.setRow(0, "01", "0300", "000001");
    window.sendCurrentRow();
    window.records().appendEvent("Uart", "Insert x");
    window.sendCurrentRow();
    window.click("pushButton_SaveMessage");
    QCOMPARE(contentOf(path),
             QByteArray("1, 5A A5  06  01 0300  00 00 01  \n2, 5A A5  06  01 0300  00 00 01  \n"));
}

void TestWorkbench::selectedLogRowsAreCopied()
{
    WindowDriver window;
    TestPort port;
    window.open(port);
    window.setRow(0, "01", "0300", "000001");
    RecordLog &records = window.records();
    window.sendCurrentRow();
    window.sendCurrentRow();
    records.appendReceived(QByteArray::fromHex("5AA5060103000000 02"), false);
    records.appendStray(QByteArray(1, '\0'));
    records.appendEvent("HID", "Insert x");
    records.appendEvent("Uart", "Insert y");
    window.window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window.window()));
    window.messages()->setFocus();
    window.messages()->selectAll();
    window.messages()->selectionModel()->select(window.messages()->model()->index(0, 0),
                                                QItemSelectionModel::Deselect |
                                                    QItemSelectionModel::Rows);
    QTest::keySequence(window.messages(), QKeySequence::Copy);
    QStringList lines = QApplication::clipboard()->text().split('\n');
    QCOMPARE(lines.takeLast(), QString());
    QStringList texts;
    const QRegularExpression time("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{6} "
                                  "[+-]\\d\\d:\\d\\d\t−?\\d+\\.\\d+ m?s$");
    for (const QString &line : std::as_const(lines)) {
        texts.append(line.section('\t', 0, 0));
        QVERIFY2(time.match(line.section('\t', 1)).hasMatch(), qPrintable(line));
    }
    QCOMPARE(texts, QStringList({"TX 2, 5A A5  06  01 0300  00 00 01  ",
                                 "RX 3, 5A A5  06  01 0300  00 00 02  ", "RX 4,     00  ",
                                 "HID,     Insert x "}));
}

void TestWorkbench::theEditorWritesIntoItsRow()
{
    WindowDriver window;
    window.setRow(3, "10", "0001", "00 00 00 01");
    QTableWidget *table = window.commands();
    DirectEditor *editor = openEditor(window, 3);
    QVERIFY(editor->isModal());
    QVERIFY(editor->isVisible());
    editor->findChild<QComboBox *>("comboBox_dataType")->setCurrentIndex(0);
    auto *value = editor->findChild<QLineEdit *>("lineEdit_originalData");
    value->selectAll();
    QTest::keyClicks(value, "1,-1");
    QTest::mouseClick(editor->findChild<QPushButton *>("pushButton_ok"), Qt::LeftButton);
    QVERIFY(!editor->isVisible());
    QCOMPARE(table->item(3, CommandColumn::Data)->text(), QString("00 00 00 01 FF FF FF FF"));
    QCOMPARE(table->item(3, CommandColumn::DataType)->text(), QString("int"));
}

void TestWorkbench::theEditorOutlivesItsRow()
{
    WindowDriver window;
    window.setRow(3, "10", "0001", "0001");
    QTableWidget *table = window.commands();
    DirectEditor *editor = openEditor(window, 3);
    window.click("pushButton_ClearCommand");
    QTest::mouseClick(editor->findChild<QPushButton *>("pushButton_ok"), Qt::LeftButton);
    for (int row = 0; row < table->rowCount(); ++row) {
        QCOMPARE(table->item(row, CommandColumn::Cmd)->text(), QString());
    }
}

void TestWorkbench::portsThatComeAndGoAreLoggedAndListed()
{
    WindowDriver window;
    const TestPort port;
    const QString link = workbenchFolder() + "/device";
    QVERIFY(QFile::link(port.path(), link));
    QTRY_COMPARE(window.messageCount(), 1);
    QCOMPARE(window.message(0), QStringList({"Uart", "", "", "", "", "Insert " + link, ""}));
    QTRY_VERIFY(window.combo("comboBox_Comm")->findText(link) >= 0);
    QVERIFY(QFile::remove(link));
    QTRY_COMPARE(window.messageCount(), 2);
    QCOMPARE(window.message(1), QStringList({"Uart", "", "", "", "", "Remove " + link, ""}));
    QTRY_VERIFY(window.combo("comboBox_Comm")->findText(link) < 0);
}

void TestWorkbench::theOpenPortIsClosedWhenItGoes()
{
    WindowDriver window;
    const TestPort port;
    const QString link = workbenchFolder() + "/device";
    QVERIFY(QFile::link(port.path(), link));
    QComboBox *ports = window.combo("comboBox_Comm");
    QTRY_VERIFY(ports->findText(link) >= 0);
    ports->setCurrentIndex(ports->findText(link));
    window.click("pushButton_OpenCom");
    QCOMPARE(window.button("pushButton_OpenCom")->text(), QString("Linking..."));
    window.setRow(0, "03", "0000", "0001");
    window.checkRow(0);
    window.edit("lineEdit_StepValue")->setText("10");
    window.edit("lineEdit_CycleTime")->setText("10");
    window.click("pushButton_Start_Loop");
    QTRY_VERIFY(window.messageCount() >= 3);
    QVERIFY(QFile::remove(link));
    QTRY_COMPARE(window.button("pushButton_OpenCom")->text(), QString("Open Com Port"));
    QCOMPARE(window.button("pushButton_Start_Loop")->text(), QString("Auto Send"));
    QVERIFY(window.find<QTabWidget>("tabWidget")->isEnabled());
    const int rows = window.messageCount();
    QCOMPARE(window.message(rows - 1).at(5), QString("Remove " + link));
}

QTEST_MAIN(TestWorkbench)
#include "tst_workbench.moc"

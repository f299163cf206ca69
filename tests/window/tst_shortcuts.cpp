#include "filedialoguser.h"
#include "testfiles.h"
#include "windowdriver.h"

#include <QTemporaryDir>
#include <QtTest>

namespace Column = CommandColumn;

class TestShortcuts : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void keysLeadOutOfTheTables_data();
    void keysLeadOutOfTheTables();
    void tabLeadsOutOfTheLog();
    void loadAndSaveHaveKeys();
    void savingTakesInTheOpenEdit();
    void keysRestWithTheirButtons();
    void f5SendsTheCurrentRow_data();
    void f5SendsTheCurrentRow();
    void f5WithoutARowSendsNothing();
    void f1AsksForTheGuide();
    void toolTipsOfButtonsStay();

private:
    QTableWidget *commands() const { return m_window->commands(); }
    void becomeActive() const;
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers);

    std::unique_ptr<WindowDriver> m_window;
    QTemporaryDir m_folder;
};

void TestShortcuts::init()
{
    m_window = std::make_unique<WindowDriver>();
    becomeActive();
}

void TestShortcuts::cleanup()
{
    m_window.reset();
}

void TestShortcuts::becomeActive() const
{
    m_window->window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_window->window()));
}

void TestShortcuts::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QVERIFY(QApplication::focusWidget() != nullptr);
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void TestShortcuts::keysLeadOutOfTheTables_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("place");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("next");

    const struct
    {
        const char *name;
        int key;
        int modifiers;
        bool forward;
    } keys[] = {
        {"F6", Qt::Key_F6, Qt::NoModifier, true},
        {"Shift+F6", Qt::Key_F6, Qt::ShiftModifier, false},
        {"Ctrl+Tab", Qt::Key_Tab, Qt::ControlModifier, true},
        {"Ctrl+Shift+Tab", Qt::Key_Backtab, int(Qt::ControlModifier) | int(Qt::ShiftModifier),
         false},
    };
    for (const auto &key : keys) {
        for (const char *place : {"table", "editor", "Select box", "send button"}) {
            QTest::addRow("%s, %s", key.name, place)
                << "tableWidget_Register" << place << key.key << key.modifiers
                << (key.forward ? "tableWidget_Message" : "pushButton_ClearCommand");
        }
        QTest::addRow("%s, log", key.name)
            << "tableWidget_Message"
            << "table" << key.key << key.modifiers
            << (key.forward ? "lineEdit_StepValue" : "tableWidget_Register");
    }
}

void TestShortcuts::keysLeadOutOfTheTables()
{
    QFETCH(QString, table);
    QFETCH(QString, place);
    QFETCH(int, key);
    QFETCH(int, modifiers);
    auto *widget = m_window->find<QTableWidget>(qPrintable(table));
    widget->setFocus();
    if (place == "editor") {
        widget->setCurrentCell(2, Column::Data);
        press(Qt::Key_F2, Qt::NoModifier);
        QVERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()) != nullptr);
    } else if (place == "Select box") {
        m_window->checkRow(2);
    } else if (place == "send button") {
        commands()->cellWidget(2, Column::Send)->setFocus();
    }
    QVERIFY(widget->hasFocus() == (place == "table"));
    press(Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QTEST(QApplication::focusWidget()->objectName(), "next");
}

void TestShortcuts::tabLeadsOutOfTheLog()
{
    m_window->messages()->setFocus();
    press(Qt::Key_Tab, Qt::NoModifier);
    QCOMPARE(QApplication::focusWidget()->objectName(), QString("lineEdit_StepValue"));
    m_window->messages()->setFocus();
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(QApplication::focusWidget() != m_window->messages());
}

void TestShortcuts::loadAndSaveHaveKeys()
{
    const QString path = m_folder.filePath("keys.txt");
    const FileDialogUser user(path);
    m_window->setRow(0, "5A", "0010", "01");
    for (QWidget *place :
         {static_cast<QWidget *>(commands()), static_cast<QWidget *>(m_window->messages()),
          static_cast<QWidget *>(m_window->edit("lineEdit_SBytes"))}) {
        QFile::remove(path);
        becomeActive();
        place->setFocus();
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(contentOf(path), QByteArray(",unselect,5A 0010 01\n"));
        QCOMPARE(user.look().mode, QFileDialog::AcceptSave);
        becomeActive();
        press(Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(user.look().mode, QFileDialog::AcceptOpen);
    }
    QCOMPARE(user.dialogCount(), 6);
}

void TestShortcuts::savingTakesInTheOpenEdit()
{
    const QString path = m_folder.filePath("edit.txt");
    const FileDialogUser user(path);
    m_window->setRow(0, "5A", "0010", "01");
    commands()->setCurrentCell(0, Column::Description);
    commands()->setFocus();
    press(Qt::Key_F2, Qt::NoModifier);
    QTest::keyClicks(QApplication::focusWidget(), "Name");
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(contentOf(path), QByteArray("Name,unselect,5A 0010 01\n"));
}

void TestShortcuts::keysRestWithTheirButtons()
{
    const FileDialogUser user;
    m_window->button("pushButton_LoadCommand")->setEnabled(false);
    m_window->button("pushButton_SaveCommand")->setEnabled(false);
    commands()->setFocus();
    press(Qt::Key_S, Qt::ControlModifier);
    press(Qt::Key_O, Qt::ControlModifier);
    QCOMPARE(user.dialogCount(), 0);
}

void TestShortcuts::f5SendsTheCurrentRow_data()
{
    QTest::addColumn<QString>("place");

    for (const char *place : {"table", "log", "editor"}) {
        QTest::newRow(place) << place;
    }
}

void TestShortcuts::f5SendsTheCurrentRow()
{
    QFETCH(QString, place);
    TestPort port;
    m_window->open(port);
    m_window->setRow(0, "01", "0300", "000001");
    m_window->setRow(1, "02", "0300", "000001");
    commands()->setFocus();
    if (place == "log") {
        m_window->messages()->setFocus();
    } else if (place == "editor") {
        commands()->setCurrentCell(1, Column::Cmd);
        press(Qt::Key_F2, Qt::NoModifier);
        QTest::keyClicks(QApplication::focusWidget(), "07");
    }
    press(Qt::Key_F5, Qt::NoModifier);
    QCOMPARE(m_window->messageCount(), 1);
    const QByteArray cmd = place == "editor" ? QByteArray("\x07") : QByteArray("\x02");
    QTRY_COMPARE(port.received(), "\x5A\xA5\x06" + cmd + QByteArray("\x03\0\0\0\x01", 5));
}

void TestShortcuts::f5WithoutARowSendsNothing()
{
    TestPort port;
    m_window->open(port);
    commands()->setFocus();
    commands()->setCurrentCell(-1, -1);
    press(Qt::Key_F5, Qt::NoModifier);
    QCOMPARE(m_window->messageCount(), 0);
}

void TestShortcuts::f1AsksForTheGuide()
{
    commands()->setFocus();
    MessageBoxes boxes;
    press(Qt::Key_F1, Qt::NoModifier);
    QCOMPARE(boxes.titles(), {"Message"});
    QVERIFY(boxes.texts().first().contains("share/doc/tarnwick/guide/index.html"));
}

void TestShortcuts::toolTipsOfButtonsStay()
{
    QCOMPARE(m_window->button("pushButton_LoadCommand")->toolTip(), QString("Load Command"));
    QCOMPARE(m_window->button("pushButton_SaveCommand")->toolTip(), QString("Save Command"));
}

QTEST_MAIN(TestShortcuts)
#include "tst_shortcuts.moc"

#include "logmenuwindow.h"

#include <QtTest>

namespace Column = CommandColumn;

/// From a row of the log to the command that was sent there.
class TestGoToCommand : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theRowThatSentIsFoundWhereverItStands_data();
    void theRowThatSentIsFoundWhereverItStands();
    void anEntryGoesToTheRowThatSent();
    void aRowThatIsGoneIsNotFound_data();
    void aRowThatIsGoneIsNotFound();
    void whatNoRowSentHasNoRow();

private:
    QTableWidget *log() const { return m_window->log(); }
    QTableWidget *commands() const { return m_window->commands(); }
    CommandTable *rows() const { return m_window->window().findChild<CommandTable *>(); }
    void fillCommands(int rows) const;
    bool sendBy(const QString &way, int row) const;

    std::unique_ptr<LogMenuWindow> m_window;
    std::unique_ptr<TestPort> m_port;
};

void TestGoToCommand::init()
{
    m_window = std::make_unique<LogMenuWindow>();
    m_port = std::make_unique<TestPort>();
}

void TestGoToCommand::cleanup()
{
    m_window.reset();
    m_port.reset();
}

/// Rows whose data are 00, 01 and so on, which nine rows are there for at first.
void TestGoToCommand::fillCommands(int rows) const
{
    for (int row = 0; row < rows; ++row) {
        m_window->setRow(row, "03", "1000", QString("%1").arg(row, 2, 10, QChar('0')));
    }
    m_window->open(*m_port);
}

/// Sends a row in one of the ways in which rows are sent; the last record is of it.
bool TestGoToCommand::sendBy(const QString &way, int row) const
{
    if (way == "button") {
        commands()->setCurrentCell(row, Column::Data);
        m_window->sendCurrentRow();
        return m_window->records().count() == 1;
    }
    m_window->checkRow(row - 1);
    m_window->checkRow(row);
    if (way == "send all") {
        m_window->click("pushButton_SendAll");
        return m_window->records().count() == 2;
    }
    m_window->edit("lineEdit_StepValue")->setText(way == "loop" ? "20" : "0");
    m_window->edit("lineEdit_CycleTime")->setText("10");
    m_window->click("pushButton_Start_Loop");
    const bool sent = QTest::qWaitFor(
        [this] { return m_window->records().count() % 2 == 0 && m_window->records().count() > 0; });
    m_window->click("pushButton_Start_Loop");
    return sent && m_window->records().count() % 2 == 0;
}

void TestGoToCommand::theRowThatSentIsFoundWhereverItStands_data()
{
    QTest::addColumn<QString>("way");

    for (const char *way : {"button", "send all", "loop", "fast loop"}) {
        QTest::newRow(way) << way;
    }
}

void TestGoToCommand::theRowThatSentIsFoundWhereverItStands()
{
    QFETCH(QString, way);
    fillCommands(4);
    QVERIFY(sendBy(way, 2));
    rows()->insertEmptyRow(0);
    rows()->insertEmptyRow(0);
    rows()->moveDown(4);
    commands()->removeRow(1);
    commands()->clearSelection();
    m_window->select({m_window->records().count() - 1});
    QTest::keySequence(log(), QKeySequence("Ctrl+G"));
    QCOMPARE(commands()->currentRow(), 4);
    QCOMPARE(commands()->item(4, Column::Data)->text(), QString("02"));
    QCOMPARE(commands()->selectionModel()->selectedRows().size(), 1);
    QVERIFY(commands()->hasFocus());
}

void TestGoToCommand::anEntryGoesToTheRowThatSent()
{
    constexpr int rowsAbove = 60;
    fillCommands(2);
    QVERIFY(sendBy("button", 1));
    for (int i = 0; i < rowsAbove; ++i) {
        rows()->insertEmptyRow(0);
    }
    commands()->scrollToTop();
    commands()->selectRow(0);
    QVERIFY(m_window->enabledEntries(0).contains(goToCommand));
    m_window->menus->choose(goToCommand);
    m_window->rightClick(0);
    QCOMPARE(commands()->currentRow(), rowsAbove + 1);
    const QRect shown = commands()->visualRect(commands()->currentIndex());
    QVERIFY(commands()->viewport()->rect().contains(shown.center()));
    QCOMPARE(commands()->selectionModel()->selectedRows().size(), 1);
}

void TestGoToCommand::aRowThatIsGoneIsNotFound_data()
{
    QTest::addColumn<QString>("change");

    QTest::newRow("deleted") << "deleted";
    QTest::newRow("cleared") << "cleared";
    QTest::newRow("a copy stays") << "a copy stays";
}

void TestGoToCommand::aRowThatIsGoneIsNotFound()
{
    QFETCH(QString, change);
    fillCommands(3);
    QVERIFY(sendBy("button", 1));
    QVERIFY(m_window->enabledEntries(0).contains(goToCommand));
    if (change == "a copy stays") {
        rows()->cloneRow(1);
    }
    if (change == "cleared") {
        m_window->click("pushButton_ClearCommand");
    } else {
        commands()->removeRow(1);
    }
    QVERIFY(!m_window->enabledEntries(0).contains(goToCommand));
    commands()->setCurrentCell(0, Column::Cmd);
    m_window->becomeActive();
    m_window->select({0});
    QTest::keySequence(log(), QKeySequence("Ctrl+G"));
    QCOMPARE(commands()->currentRow(), 0);
    QVERIFY(log()->hasFocus());
}

void TestGoToCommand::whatNoRowSentHasNoRow()
{
    m_window->addRecords();
    for (const int row : {0, 1, 2, 3, 4}) {
        QVERIFY(!m_window->enabledEntries(row).contains(goToCommand));
    }
}

QTEST_MAIN(TestGoToCommand)
#include "tst_gotocommand.moc"

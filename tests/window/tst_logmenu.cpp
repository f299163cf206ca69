#include "hexbytes.h"
#include "log/messagelog.h"
#include "menuuser.h"
#include "windowdriver.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

namespace Column = CommandColumn;

class TestLogMenu : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theMenuOpens_data();
    void theMenuOpens();
    void lettersOfTheMenuDoNotClash();
    void entriesCopyTheSelectedRows_data();
    void entriesCopyTheSelectedRows();
    void keysCopyTheSelectedRows_data();
    void keysCopyTheSelectedRows();
    void whatCannotBeCopiedIsDisabled_data();
    void whatCannotBeCopiedIsDisabled();
    void nothingSelectedLeavesTheClipboardAlone();
    void theRowThatSentIsFoundWhereverItStands_data();
    void theRowThatSentIsFoundWhereverItStands();
    void anEntryGoesToTheRowThatSent();
    void aRowThatIsGoneIsNotFound_data();
    void aRowThatIsGoneIsNotFound();
    void whatNoRowSentHasNoRow();
    void theTimeIsChosenByKeys();

private:
    QTableWidget *log() const { return m_window->messages(); }
    QTableWidget *commands() const { return m_window->commands(); }
    void becomeActive() const;
    void addRecords() const;
    void select(const QVector<int> &rows) const;
    void rightClick(int row) const;
    QStringList enabledEntries(int row);
    void fillCommands(int rows) const;
    bool sendBy(const QString &way, int row) const;
    CommandTable *rows() const { return m_window->window().findChild<CommandTable *>(); }

    std::unique_ptr<WindowDriver> m_window;
    std::unique_ptr<MenuUser> m_menus;
    std::unique_ptr<TestPort> m_port;
};

namespace {

const QString goToCommand = QStringLiteral("&Go to its command");
const QStringList copyingEntries{"Copy &rows", "Copy &data", "Copy data as &text",
                                 "Copy data as &C array", "Copy data as &Python bytes"};

/// Each copied row ends with its time, behind a tab.
QString withoutTimes(QString copied)
{
    return copied.remove(QRegularExpression("\t[^\n]*"));
}

/// On a small screen a menu may have to move up and to the left.
bool opensAt(const QPoint &position, const QPoint &place)
{
    constexpr int farthest = 100;
    return position.x() <= place.x() && position.x() > place.x() - farthest &&
           position.y() <= place.y();
}

} // namespace

void TestLogMenu::init()
{
    m_window = std::make_unique<WindowDriver>();
    m_window->window().resize(1120, 760);
    becomeActive();
    m_menus = std::make_unique<MenuUser>();
    m_port = std::make_unique<TestPort>();
    QApplication::clipboard()->setText("before");
}

void TestLogMenu::cleanup()
{
    m_menus.reset();
    m_window.reset();
    m_port.reset();
}

/// A menu that closes leaves no window active here.
void TestLogMenu::becomeActive() const
{
    m_window->window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_window->window()));
}

/// Rows 0 to 3: sent, received, stray, an event.
void TestLogMenu::addRecords() const
{
    RecordLog &records = m_window->records();
    records.appendSent(hex("5AA5 08 03 1000 000001 840A"), true);
    records.appendReceived(hex("5AA5 06 42 1000 4F4B0D"), false);
    records.appendStray(hex("FF"));
    records.appendEvent("HID", "Insert x");
}

void TestLogMenu::select(const QVector<int> &rows) const
{
    log()->clearSelection();
    for (const int row : rows) {
        log()->setCurrentCell(row, 0, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    log()->setFocus();
}

void TestLogMenu::rightClick(int row) const
{
    const QPoint place = log()->visualRect(log()->model()->index(row, 5)).center();
    QTest::mouseClick(log()->viewport(), Qt::RightButton, {}, place);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, log()->viewport()->mapToGlobal(place));
    const int before = m_menus->menuCount();
    QCoreApplication::sendEvent(log()->viewport(), &event);
    QTRY_COMPARE(m_menus->menuCount(), before + 1);
    QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
}

QStringList TestLogMenu::enabledEntries(int row)
{
    QStringList enabled;
    const auto connection = connect(m_menus.get(), &MenuUser::shown, this, [&](QMenu *menu) {
        for (const QAction *action : menu->actions()) {
            if (action->isEnabled() && !action->isSeparator()) {
                enabled.append(action->text());
            }
        }
    });
    m_menus->choose({});
    rightClick(row);
    disconnect(connection);
    return enabled;
}

/// Rows whose data are 00, 01 and so on, which nine rows are there for at first.
void TestLogMenu::fillCommands(int rows) const
{
    for (int row = 0; row < rows; ++row) {
        m_window->setRow(row, "03", "1000", QString("%1").arg(row, 2, 10, QChar('0')));
    }
    m_window->open(*m_port);
}

/// Sends a row in one of the ways in which rows are sent; the last record is of it.
bool TestLogMenu::sendBy(const QString &way, int row) const
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

void TestLogMenu::theMenuOpens_data()
{
    QTest::addColumn<QString>("by");

    QTest::newRow("mouse") << "mouse";
    QTest::newRow("menu key") << "menu key";
    QTest::newRow("Shift+F10") << "Shift+F10";
}

void TestLogMenu::theMenuOpens()
{
    QFETCH(QString, by);
    addRecords();
    select({1});
    const QPoint below =
        log()->viewport()->mapToGlobal(log()->visualRect(log()->currentIndex()).bottomLeft());
    if (by == "mouse") {
        rightClick(1);
    } else if (by == "menu key") {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint());
        QCoreApplication::sendEvent(log(), &event);
        QVERIFY(opensAt(m_menus->position(), below));
    } else {
        QTest::keyClick(log(), Qt::Key_F10, Qt::ShiftModifier);
        QVERIFY(opensAt(m_menus->position(), below));
    }
    QCOMPARE(m_menus->menuCount(), 1);
    QCOMPARE(m_menus->entries().mid(0, copyingEntries.size()), copyingEntries);
    QVERIFY(m_menus->entries().contains(goToCommand));
    QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
}

void TestLogMenu::lettersOfTheMenuDoNotClash()
{
    rightClick(0);
    QSet<QChar> letters;
    for (const QString &entry : m_menus->entries()) {
        if (entry.isEmpty()) {
            continue;
        }
        const int mark = entry.indexOf('&');
        QVERIFY2(mark >= 0, qPrintable(entry));
        const QChar letter = entry.at(mark + 1).toLower();
        QVERIFY2(!letters.contains(letter), qPrintable(entry));
        letters.insert(letter);
    }
}

void TestLogMenu::entriesCopyTheSelectedRows_data()
{
    QTest::addColumn<QVector<int>>("rows");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("text");

    const QVector<int> all{0, 1, 2, 3};
    QTest::newRow("rows") << QVector<int>{1, 3} << copyingEntries.at(0)
                          << "RX 2, 5A A5  06  42 1000  4F 4B 0D  \nHID,     Insert x \n";
    QTest::newRow("data of one") << QVector<int>{0} << copyingEntries.at(1) << "00 00 01";
    QTest::newRow("data") << all << copyingEntries.at(1) << "00 00 01\n4F 4B 0D\nFF";
    QTest::newRow("text") << QVector<int>{1} << copyingEntries.at(2) << "OK\\r";
    QTest::newRow("C") << all << copyingEntries.at(3)
                       << "{0x00, 0x00, 0x01},\n{0x4F, 0x4B, 0x0D},\n{0xFF}";
    QTest::newRow("Python") << QVector<int>{0, 2} << copyingEntries.at(4)
                            << "b\"\\x00\\x00\\x01\",\nb\"\\xFF\"";
}

void TestLogMenu::entriesCopyTheSelectedRows()
{
    QFETCH(QVector<int>, rows);
    QFETCH(QString, entry);
    addRecords();
    select(rows);
    m_menus->choose(entry);
    rightClick(rows.last());
    QTEST(withoutTimes(QApplication::clipboard()->text()), "text");
}

void TestLogMenu::keysCopyTheSelectedRows_data()
{
    QTest::addColumn<QKeySequence>("key");
    QTest::addColumn<QString>("text");

    QTest::newRow("Ctrl+C") << QKeySequence("Ctrl+C") << "RX 3,     FF  \n";
    QTest::newRow("Ctrl+Shift+C") << QKeySequence("Ctrl+Shift+C") << "FF";
}

void TestLogMenu::keysCopyTheSelectedRows()
{
    QFETCH(QKeySequence, key);
    addRecords();
    select({2});
    QTest::keySequence(log(), key);
    QTEST(withoutTimes(QApplication::clipboard()->text()), "text");
}

void TestLogMenu::whatCannotBeCopiedIsDisabled_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QStringList>("enabled");

    QTest::newRow("a frame") << 0 << copyingEntries;
    QTest::newRow("an event") << 3 << QStringList(copyingEntries.mid(0, 1));
    QTest::newRow("an empty row") << 5 << QStringList();
}

void TestLogMenu::whatCannotBeCopiedIsDisabled()
{
    QFETCH(int, row);
    QFETCH(QStringList, enabled);
    addRecords();
    QStringList copying;
    for (const QString &entry : enabledEntries(row)) {
        if (entry.startsWith("Copy")) {
            copying.append(entry);
        }
    }
    QCOMPARE(copying, enabled);
}

void TestLogMenu::nothingSelectedLeavesTheClipboardAlone()
{
    addRecords();
    log()->setFocus();
    QTest::keySequence(log(), QKeySequence("Ctrl+C"));
    QTest::keySequence(log(), QKeySequence("Ctrl+Shift+C"));
    QCOMPARE(QApplication::clipboard()->text(), QString("before"));
}

void TestLogMenu::theRowThatSentIsFoundWhereverItStands_data()
{
    QTest::addColumn<QString>("way");

    for (const char *way : {"button", "send all", "loop", "fast loop"}) {
        QTest::newRow(way) << way;
    }
}

void TestLogMenu::theRowThatSentIsFoundWhereverItStands()
{
    QFETCH(QString, way);
    fillCommands(4);
    QVERIFY(sendBy(way, 2));
    rows()->insertEmptyRow(0);
    rows()->insertEmptyRow(0);
    rows()->moveDown(4);
    commands()->removeRow(1);
    commands()->clearSelection();
    select({m_window->records().count() - 1});
    QTest::keySequence(log(), QKeySequence("Ctrl+G"));
    QCOMPARE(commands()->currentRow(), 4);
    QCOMPARE(commands()->item(4, Column::Data)->text(), QString("02"));
    QCOMPARE(commands()->selectionModel()->selectedRows().size(), 1);
    QVERIFY(commands()->hasFocus());
}

void TestLogMenu::anEntryGoesToTheRowThatSent()
{
    constexpr int rowsAbove = 60;
    fillCommands(2);
    QVERIFY(sendBy("button", 1));
    for (int i = 0; i < rowsAbove; ++i) {
        rows()->insertEmptyRow(0);
    }
    commands()->scrollToTop();
    commands()->selectRow(0);
    QVERIFY(enabledEntries(0).contains(goToCommand));
    m_menus->choose(goToCommand);
    rightClick(0);
    QCOMPARE(commands()->currentRow(), rowsAbove + 1);
    const QRect shown = commands()->visualRect(commands()->currentIndex());
    QVERIFY(commands()->viewport()->rect().contains(shown.center()));
    QCOMPARE(commands()->selectionModel()->selectedRows().size(), 1);
}

void TestLogMenu::aRowThatIsGoneIsNotFound_data()
{
    QTest::addColumn<QString>("change");

    QTest::newRow("deleted") << "deleted";
    QTest::newRow("cleared") << "cleared";
    QTest::newRow("a copy stays") << "a copy stays";
}

void TestLogMenu::aRowThatIsGoneIsNotFound()
{
    QFETCH(QString, change);
    fillCommands(3);
    QVERIFY(sendBy("button", 1));
    QVERIFY(enabledEntries(0).contains(goToCommand));
    if (change == "a copy stays") {
        rows()->cloneRow(1);
    }
    if (change == "cleared") {
        m_window->click("pushButton_ClearCommand");
    } else {
        commands()->removeRow(1);
    }
    QVERIFY(!enabledEntries(0).contains(goToCommand));
    commands()->setCurrentCell(0, Column::Cmd);
    becomeActive();
    select({0});
    QTest::keySequence(log(), QKeySequence("Ctrl+G"));
    QCOMPARE(commands()->currentRow(), 0);
    QVERIFY(log()->hasFocus());
}

void TestLogMenu::whatNoRowSentHasNoRow()
{
    addRecords();
    for (const int row : {0, 1, 2, 3, 4}) {
        QVERIFY(!enabledEntries(row).contains(goToCommand));
    }
}

void TestLogMenu::theTimeIsChosenByKeys()
{
    m_menus.reset();
    const auto *shown = m_window->window().findChild<MessageLog *>();
    log()->setFocus();
    const auto choose = [this](int letter) {
        QTest::keyClick(log(), Qt::Key_F10, Qt::ShiftModifier);
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu != nullptr);
        QTest::keyClick(menu, Qt::Key_I);
        auto *times = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(times != nullptr && times != menu);
        QStringList checked;
        for (const QAction *entry : times->actions()) {
            checked += entry->isChecked() ? entry->text() : QString();
        }
        checked.removeAll(QString());
        QCOMPARE(checked.size(), 1);
        QTest::keyClick(times, Qt::Key(letter));
        QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
        becomeActive();
    };
    QCOMPARE(shown->shownTime(), ShownTime::SinceRowBefore);
    choose(Qt::Key_D);
    QCOMPARE(shown->shownTime(), ShownTime::OfDay);
    choose(Qt::Key_N);
    QCOMPARE(shown->shownTime(), ShownTime::Nothing);
    choose(Qt::Key_R);
    QCOMPARE(shown->shownTime(), ShownTime::SinceRowBefore);
}

QTEST_MAIN(TestLogMenu)
#include "tst_logmenu.moc"

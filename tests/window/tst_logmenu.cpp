#include "log/messagelog.h"
#include "logmenuwindow.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

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
    void theTimeIsChosenByKeys();

private:
    QTableWidget *log() const { return m_window->log(); }

    std::unique_ptr<LogMenuWindow> m_window;
};

namespace {

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
    m_window = std::make_unique<LogMenuWindow>();
    QApplication::clipboard()->setText("before");
}

void TestLogMenu::cleanup()
{
    m_window.reset();
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
    m_window->addRecords();
    m_window->select({1});
    const QPoint below =
        log()->viewport()->mapToGlobal(log()->visualRect(log()->currentIndex()).bottomLeft());
    if (by == "mouse") {
        m_window->rightClick(1);
    } else if (by == "menu key") {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint());
        QCoreApplication::sendEvent(log(), &event);
        QVERIFY(opensAt(m_window->menus->position(), below));
    } else {
        QTest::keyClick(log(), Qt::Key_F10, Qt::ShiftModifier);
        QVERIFY(opensAt(m_window->menus->position(), below));
    }
    QCOMPARE(m_window->menus->menuCount(), 1);
    QCOMPARE(m_window->menus->entries().mid(0, copyingEntries.size()), copyingEntries);
    QVERIFY(m_window->menus->entries().contains(goToCommand));
    QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
}

void TestLogMenu::lettersOfTheMenuDoNotClash()
{
    m_window->rightClick(0);
    QSet<QChar> letters;
    for (const QString &entry : m_window->menus->entries()) {
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
    m_window->addRecords();
    m_window->select(rows);
    m_window->menus->choose(entry);
    m_window->rightClick(rows.last());
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
    m_window->addRecords();
    m_window->select({2});
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
    m_window->addRecords();
    QStringList copying;
    for (const QString &entry : m_window->enabledEntries(row)) {
        if (entry.startsWith("Copy")) {
            copying.append(entry);
        }
    }
    QCOMPARE(copying, enabled);
}

void TestLogMenu::nothingSelectedLeavesTheClipboardAlone()
{
    m_window->addRecords();
    log()->setFocus();
    QTest::keySequence(log(), QKeySequence("Ctrl+C"));
    QTest::keySequence(log(), QKeySequence("Ctrl+Shift+C"));
    QCOMPARE(QApplication::clipboard()->text(), QString("before"));
}

void TestLogMenu::theTimeIsChosenByKeys()
{
    m_window->menus.reset();
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
        m_window->becomeActive();
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

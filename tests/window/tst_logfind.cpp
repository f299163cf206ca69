#include "filedialoguser.h"
#include "hexbytes.h"
#include "log/messagelog.h"
#include "menuuser.h"
#include "testfiles.h"
#include "windowdriver.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QtTest>

class TestLogFind : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theFieldIsHiddenAtFirst();
    void keysOpenAndCloseIt_data();
    void keysOpenAndCloseIt();
    void theMenuOpensIt();
    void theMouseClosesIt();
    void whatIsTypedIsFoundAndCounted();
    void rowsThatComeInAreFilteredAndCounted();
    void onlyRowsThatAreShownAreCopied();
    void allRowsAreSaved();
    void keysAloneFindAndCopy();
    void theHeadKeepsItsPlace();

    void theLogIsHeldByMenuAndKey_data();
    void theLogIsHeldByMenuAndKey();
    void theWheelHoldsWhileFramesComeIn();

private:
    QTableWidget *log() const { return m_window->messages(); }
    QLineEdit *field() const { return m_window->edit("lineEdit_Find"); }
    QString counted() const { return m_window->find<QLabel>("label_FindCount")->text(); }
    bool isHeld() const { return !m_window->find<QLabel>("label_Held")->isHidden(); }
    int shownRows() const;
    void becomeActive() const;
    void addPairs(int pairs) const;
    void find(const QString &text) const;
    void chooseFromMenu(const QString &entry) const;

    std::unique_ptr<WindowDriver> m_window;
};

void TestLogFind::init()
{
    m_window = std::make_unique<WindowDriver>();
    m_window->window().resize(1120, 760);
    becomeActive();
}

void TestLogFind::cleanup()
{
    m_window.reset();
}

int TestLogFind::shownRows() const
{
    int shown = 0;
    for (int row = 0; row < log()->rowCount(); ++row) {
        shown += log()->isRowHidden(row) ? 0 : 1;
    }
    return shown;
}

void TestLogFind::becomeActive() const
{
    m_window->window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_window->window()));
}

/// Pairs of a frame that was sent and one that was received, the data of which are the pair.
void TestLogFind::addPairs(int pairs) const
{
    RecordLog &records = m_window->records();
    for (int pair = records.count() / 2; pairs > 0; ++pair, --pairs) {
        const QByteArray number = hex(QString("%1").arg(pair, 4, 16, QChar('0')));
        records.appendSent(hex("5AA5 06 03 1000") + number, false);
        records.appendReceived(hex("5AA5 06 42 1000") + number, false);
    }
    m_window->window().findChild<MessageLog *>()->bringIn();
}

void TestLogFind::find(const QString &text) const
{
    QTest::keySequence(&m_window->window(), QKeySequence("Ctrl+F"));
    QVERIFY(field()->hasFocus());
    QTest::keyClicks(field(), text);
}

void TestLogFind::chooseFromMenu(const QString &entry) const
{
    MenuUser menus;
    menus.choose(entry);
    const QPoint place = log()->viewport()->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, log()->viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(log()->viewport(), &event);
    QTRY_COMPARE(menus.menuCount(), 1);
    QVERIFY(menus.entries().contains(entry));
    QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
    becomeActive();
}

void TestLogFind::theFieldIsHiddenAtFirst()
{
    QVERIFY(!field()->isVisible());
    QVERIFY(!m_window->find<QLabel>("label_FindCount")->isVisible());
    QVERIFY(!isHeld());
}

void TestLogFind::keysOpenAndCloseIt_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<bool>("goesToTheLog");

    QTest::newRow("the commands") << "tableWidget_Register" << false;
    QTest::newRow("another field") << "lineEdit_StepValue" << false;
    QTest::newRow("the log") << "tableWidget_Message" << true;
}

void TestLogFind::keysOpenAndCloseIt()
{
    QFETCH(QString, from);
    QFETCH(bool, goesToTheLog);
    addPairs(2);
    m_window->find<QWidget>(qPrintable(from))->setFocus();
    QTest::keySequence(QApplication::focusWidget(), QKeySequence("Ctrl+F"));
    QVERIFY(field()->isVisible());
    QVERIFY(field()->hasFocus());
    QCOMPARE(counted(), QString());
    QTest::keyClicks(field(), "rx");
    QCOMPARE(shownRows(), 2);
    if (goesToTheLog) {
        QTest::keyClick(field(), Qt::Key_Return);
        QVERIFY(log()->hasFocus());
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QVERIFY(m_window->window().isVisible());
    QVERIFY(!field()->isVisible());
    QVERIFY(log()->hasFocus());
    QCOMPARE(shownRows(), 9);
    QTest::keyClick(log(), Qt::Key_Escape);
    QVERIFY(m_window->window().isVisible());
    find("tx");
    QCOMPARE(field()->text(), QString("tx"));
}

void TestLogFind::theMenuOpensIt()
{
    chooseFromMenu("&Find…");
    QVERIFY(field()->isVisible());
    QVERIFY(field()->hasFocus());
}

void TestLogFind::theMouseClosesIt()
{
    addPairs(2);
    find("rx");
    const auto *cross = field()->findChild<QAbstractButton *>();
    QVERIFY(cross != nullptr);
    QTest::mouseClick(const_cast<QAbstractButton *>(cross), Qt::LeftButton);
    QVERIFY(!field()->isVisible());
    QCOMPARE(shownRows(), 9);
}

void TestLogFind::whatIsTypedIsFoundAndCounted()
{
    addPairs(20);
    find("rx");
    QCOMPARE(shownRows(), 20);
    QCOMPARE(counted(), QString("20 of 40 rows"));
    QTest::keyClicks(field(), " 42 10 00 00 0");
    QCOMPARE(counted(), QString("16 of 40 rows"));
    QTest::keyClicks(field(), "a");
    QCOMPARE(counted(), QString("1 of 40 rows"));
    QVERIFY(!log()->isRowHidden(21));
    QCOMPARE(m_window->find<QLabel>("label_MessageCount")->text(), QString("40 of 1025"));
    field()->clear();
    QCOMPARE(shownRows(), 40);
    QCOMPARE(counted(), QString());
}

void TestLogFind::rowsThatComeInAreFilteredAndCounted()
{
    find("rx 01");
    m_window->records().appendReceived(hex("5AA502 03 01"), false);
    m_window->records().appendReceived(hex("5AA502 03 02"), false);
    QTRY_COMPARE(counted(), QString("1 of 2 rows"));
    QCOMPARE(shownRows(), 1);
    QVERIFY(!log()->isRowHidden(0));
    m_window->records().clear();
    QTRY_COMPARE(counted(), QString("0 of 0 rows"));
    m_window->records().appendReceived(hex("5AA502 03 01"), false);
    QTRY_COMPARE(counted(), QString("1 of 1 row"));
}

void TestLogFind::onlyRowsThatAreShownAreCopied()
{
    addPairs(2);
    log()->selectAll();
    find("rx");
    log()->setFocus();
    QTest::keySequence(log(), QKeySequence("Ctrl+C"));
    const QStringList lines = QApplication::clipboard()->text().split('\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 2);
    QVERIFY(lines.at(0).startsWith("RX 2, 5A A5  06  42 1000  00 00  \t"));
    QVERIFY(lines.at(1).startsWith("RX 4, 5A A5  06  42 1000  00 01  \t"));
}

void TestLogFind::allRowsAreSaved()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("log.txt");
    const FileDialogUser user(path);
    addPairs(2);
    find("rx");
    m_window->click("pushButton_SaveMessage");
    QCOMPARE(contentOf(path).count('\n'), 4);
}

void TestLogFind::keysAloneFindAndCopy()
{
    addPairs(100);
    const auto press = [](const QKeySequence &keys) {
        QTest::keySequence(QApplication::focusWidget(), keys);
    };
    m_window->commands()->setFocus();
    press({"Ctrl+F"});
    QTest::keyClicks(QApplication::focusWidget(), "42 1000 0021");
    press({"Return"});
    press({"Ctrl+Shift+C"});
    QCOMPARE(QApplication::clipboard()->text(), QString("00 21"));
    press({"Escape"});
    QCOMPARE(shownRows(), 200);
    QCOMPARE(log()->currentRow(), 67);
    const QRect place = log()->visualRect(log()->currentIndex());
    QVERIFY(log()->viewport()->rect().contains(place.center()));
    QVERIFY(isHeld());
}

/// The field finds room beside what stood there already.
void TestLogFind::theHeadKeepsItsPlace()
{
    const auto place = [this](const char *name) {
        const auto *widget = m_window->find<QWidget>(name);
        return QRect(widget->mapTo(&m_window->window(), QPoint()), widget->size());
    };
    const QSize window = m_window->window().size();
    const QRect label = place("label_11");
    const QRect count = place("label_MessageCount");
    find("rx");
    m_window->find<QLabel>("label_Held")->show();
    QCoreApplication::processEvents();
    QCOMPARE(m_window->window().size(), window);
    QCOMPARE(place("label_11").left(), label.left());
    QCOMPARE(place("label_MessageCount").left(), count.left());
    QVERIFY(place("label_11").right() < place("lineEdit_Find").left());
    QVERIFY(place("lineEdit_Find").right() < place("label_FindCount").left());
    QVERIFY(place("label_FindCount").right() < place("label_Held").left());
    constexpr int farthest = 20;
    const int gap = place("label_MessageCount").left() - place("label_Held").right();
    QVERIFY(gap > 0 && gap < farthest);
    QTest::keyClick(field(), Qt::Key_Escape);
    QTRY_COMPARE(place("label_MessageCount"), count);
}

void TestLogFind::theLogIsHeldByMenuAndKey_data()
{
    QTest::addColumn<bool>("byKey");

    QTest::newRow("menu") << false;
    QTest::newRow("key") << true;
}

void TestLogFind::theLogIsHeldByMenuAndKey()
{
    QFETCH(bool, byKey);
    const auto hold = [&] {
        if (byKey) {
            QTest::keySequence(log(), QKeySequence("Ctrl+H"));
        } else {
            chooseFromMenu("&Hold");
        }
    };
    const QScrollBar &bar = *log()->verticalScrollBar();
    addPairs(20);
    QTRY_VERIFY(bar.value() > 0 && bar.value() == bar.maximum());
    log()->setFocus();
    hold();
    QVERIFY(isHeld());
    const int before = bar.value();
    addPairs(20);
    QTRY_COMPARE(bar.maximum(), before + 40);
    QCOMPARE(bar.value(), before);
    hold();
    QVERIFY(!isHeld());
    QCOMPARE(bar.value(), bar.maximum());
}

void TestLogFind::theWheelHoldsWhileFramesComeIn()
{
    const QScrollBar &bar = *log()->verticalScrollBar();
    QTimer device;
    connect(&device, &QTimer::timeout,
            [this] { m_window->records().appendReceived(hex("5AA5020301"), false); });
    device.start(5);
    QTRY_VERIFY(bar.maximum() > 5 && bar.value() == bar.maximum());
    const QPointF place(log()->viewport()->rect().center());
    const auto turn = [&](int steps) {
        QWheelEvent event(place, log()->viewport()->mapToGlobal(place.toPoint()), {},
                          {0, 120 * steps}, {}, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(log()->viewport(), &event);
    };
    turn(1);
    QVERIFY(isHeld());
    const int held = bar.value();
    const int first = log()->rowAt(0);
    const int until = m_window->records().count() + 40;
    QTRY_VERIFY(m_window->records().count() >= until);
    QCOMPARE(bar.value(), held);
    QCOMPARE(log()->rowAt(0), first);
    for (int turns = 0; isHeld() && turns < until; ++turns) {
        turn(-1);
    }
    QVERIFY(!isHeld());
    const int reached = bar.value();
    QTRY_VERIFY(bar.value() > reached && bar.value() == bar.maximum());
}

QTEST_MAIN(TestLogFind)
#include "tst_logfind.moc"

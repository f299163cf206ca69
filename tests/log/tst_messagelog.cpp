#include "logtable.h"
#include "messagelog.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

class TestMessageLog : public QObject
{
    Q_OBJECT

private slots:
    void theColumnsThatAreColoured_data();
    void theColumnsThatAreColoured();
    void rowsKnowWhichWayTheyWent();
    void theCountIsToldOnceInADisplayFrame();
    void rowsOfAHeldTableAreInButNotInView();
};

namespace {

const QString hexText = QStringLiteral("5A A5 08 03 10 00 00 00 00 00 77 ");

struct ShownLog
{
    ShownLog()
        : log(table)
    {
        table.resize(700, 300);
        table.show();
        QVERIFY(QTest::qWaitForWindowExposed(&table));
    }

    LogTable table;
    MessageLog log;
};

} // namespace

void TestMessageLog::theColumnsThatAreColoured_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QVector<int>>("columns");

    QTest::newRow("sent") << 0 << QVector<int>();
    QTest::newRow("received") << 1 << QVector<int>{0, 1, 2, 3, 4, 5, 6};
    QTest::newRow("notice") << 2 << QVector<int>{0, 5};
    QTest::newRow("event") << 3 << QVector<int>{0, 5};
    QTest::newRow("empty") << 4 << QVector<int>();
}

void TestMessageLog::theColumnsThatAreColoured()
{
    QFETCH(int, row);
    QFETCH(QVector<int>, columns);

    LogTable table;
    MessageLog log(table);
    log.appendSent(hexText, true);
    log.appendReceived(hexText, true);
    log.appendNotice("01 ");
    log.appendEvent("HID", "Insert x");
    QVector<int> coloured;
    for (int column = 0; column < table.columnCount(); ++column) {
        const QVariant colour = table.item(row, column)->data(Qt::ForegroundRole);
        if (colour.isValid()) {
            QCOMPARE(colour.value<QBrush>(), QBrush(QColor(0, 130, 255)));
            coloured.append(column);
        }
    }
    QCOMPARE(coloured, columns);
}

void TestMessageLog::rowsKnowWhichWayTheyWent()
{
    using Direction = MessageLog::Direction;
    LogTable table;
    MessageLog log(table);
    log.appendNotice("01 ");
    log.clear();
    log.appendSent(hexText, true);
    log.appendReceived(hexText, true);
    log.appendNotice("01 ");
    log.appendEvent("HID", "Insert x");
    QCOMPARE(log.direction(0), Direction::Sent);
    QCOMPARE(log.direction(1), Direction::Received);
    QCOMPARE(log.direction(2), Direction::Received);
    QCOMPARE(log.direction(3), Direction::None);
}

void TestMessageLog::theCountIsToldOnceInADisplayFrame()
{
    constexpr int rows = 300;
    LogTable table;
    MessageLog log(table);
    QSignalSpy told(&log, &MessageLog::countChanged);
    for (int row = 0; row < rows; ++row) {
        log.appendSent(hexText, true);
    }
    QCOMPARE(told.count(), 1);
    QVERIFY(told.wait());
    QCOMPARE(told.count(), 2);
    QCOMPARE(told.last().first().toInt(), rows);
    QVERIFY(!told.wait(100));
    log.clear();
    QCOMPARE(told.count(), 3);
    QCOMPARE(told.last().first().toInt(), 0);
}

void TestMessageLog::rowsOfAHeldTableAreInButNotInView()
{
    constexpr int rows = 20;
    ShownLog shown;
    bool held = true;
    shown.log.setHold([&held] { return held; });
    for (int row = 0; row < rows; ++row) {
        shown.log.appendSent(hexText, true);
    }
    QCOMPARE(shown.table.rowCount(), rows);
    QCOMPARE(shown.table.item(rows - 1, 0)->text(), QString::number(rows));
    const QScrollBar &bar = *shown.table.verticalScrollBar();
    QCOMPARE(bar.value(), 0);
    held = false;
    QTRY_VERIFY(bar.value() > 0);
    QCOMPARE(bar.value(), bar.maximum());
}

QTEST_MAIN(TestMessageLog)

#include "tst_messagelog.moc"

#include "log/logtable.h"
#include "log/messagelog.h"
#include "log/recordlog.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

class TestMessageLog : public QObject
{
    Q_OBJECT

private slots:
    void theColumnsThatAreColoured_data();
    void theColumnsThatAreColoured();
    void theTableFollowsItsRecords();
    void aFloodBuildsNoRowsThatNobodySees();
    void clearingShowsAtOnce();
    void theCountIsToldOnceInADisplayFrame();
    void rowsOfAHeldTableAreInButNotInView();
};

namespace {

const QByteArray loggedFrame = QByteArray::fromHex("5AA5080310000000000077");

QStringList shownTexts(const LogTable &table, int row)
{
    QStringList texts;
    for (int column = 0; column < table.columnCount(); ++column) {
        texts.append(table.item(row, column)->text());
    }
    return texts;
}

struct ShownLog
{
    ShownLog()
        : log(table, records)
    {
        table.resize(700, 300);
        table.show();
        QVERIFY(QTest::qWaitForWindowExposed(&table));
    }

    LogTable table;
    RecordLog records;
    MessageLog log;
};

} // namespace

void TestMessageLog::theColumnsThatAreColoured_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QVector<int>>("columns");

    QTest::newRow("sent") << 0 << QVector<int>();
    QTest::newRow("received") << 1 << QVector<int>{0, 1, 2, 3, 4, 5, 6};
    QTest::newRow("stray") << 2 << QVector<int>{0, 5};
    QTest::newRow("event") << 3 << QVector<int>{0, 5};
    QTest::newRow("empty") << 4 << QVector<int>();
}

void TestMessageLog::theColumnsThatAreColoured()
{
    QFETCH(int, row);
    QFETCH(QVector<int>, columns);

    LogTable table;
    RecordLog records;
    const MessageLog log(table, records);
    records.appendSent(loggedFrame, true);
    records.appendReceived(loggedFrame, true);
    records.appendStray("\x01");
    records.appendEvent("HID", "Insert x");
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

void TestMessageLog::theTableFollowsItsRecords()
{
    LogTable table;
    RecordLog records;
    const MessageLog log(table, records);
    records.appendSent(loggedFrame, true);
    records.appendEvent("HID", "Insert x");
    QCOMPARE(shownTexts(table, 0),
             QStringList({"1", "5A A5", " 08", " 03", "1000", " 00 00 00 ", "00 77 ", ""}));
    QCOMPARE(shownTexts(table, 1), QStringList({"HID", "", "", "", "", "Insert x", "", ""}));
    QCOMPARE(table.rowCount(), 9);
    for (int row = 2; row < RecordLog::mostRecords; ++row) {
        records.appendStray("x");
    }
    QTRY_COMPARE(table.rowCount(), RecordLog::mostRecords);
    records.appendStray("y");
    QTRY_COMPARE(table.rowCount(), 9);
    QCOMPARE(shownTexts(table, 0), QStringList({"1", "", "", "", "", "79 ", "", ""}));
    QCOMPARE(shownTexts(table, 1).join(QString()), QString());
}

void TestMessageLog::aFloodBuildsNoRowsThatNobodySees()
{
    constexpr int frames = 5 * RecordLog::mostRecords + 20;
    constexpr int mostBuilt = 200;
    LogTable table;
    RecordLog records;
    const MessageLog log(table, records);
    int built = 0;
    connect(table.model(), &QAbstractItemModel::rowsInserted, this,
            [&built](const QModelIndex & /*parent*/, int first, int last) {
                built += last - first + 1;
            });
    for (int i = 0; i < frames; ++i) {
        records.appendReceived(loggedFrame, false);
    }
    QTRY_COMPARE(table.rowCount(), 20);
    QCOMPARE(table.item(19, 0)->text(), QString("20"));
    QVERIFY2(built < mostBuilt, qPrintable(QString::number(built)));
}

void TestMessageLog::clearingShowsAtOnce()
{
    LogTable table;
    RecordLog records;
    const MessageLog log(table, records);
    for (int i = 0; i < 300; ++i) {
        records.appendReceived(loggedFrame, false);
    }
    records.clear();
    QCOMPARE(table.rowCount(), 9);
    QCOMPARE(shownTexts(table, 0).join(QString()), QString());
}

void TestMessageLog::theCountIsToldOnceInADisplayFrame()
{
    constexpr int rows = 300;
    LogTable table;
    RecordLog records;
    const MessageLog log(table, records);
    QSignalSpy told(&log, &MessageLog::countChanged);
    for (int row = 0; row < rows; ++row) {
        records.appendSent(loggedFrame, true);
    }
    QCOMPARE(told.count(), 1);
    QVERIFY(told.wait());
    QCOMPARE(told.count(), 2);
    QCOMPARE(told.last().first().toInt(), rows);
    QVERIFY(!told.wait(100));
    records.clear();
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
        shown.records.appendSent(loggedFrame, true);
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

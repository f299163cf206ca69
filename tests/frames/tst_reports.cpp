#include "frames/reports.h"

#include <QtTest>

class TestReports : public QObject
{
    Q_OBJECT

private slots:
    void cuts_data();
    void cuts();
};

namespace {

/// Bytes that differ from their neighbours and are never 0.
QByteArray countingBytes(int count)
{
    QByteArray bytes;
    for (int i = 0; i < count; ++i) {
        bytes.append(static_cast<char>(i % 255 + 1));
    }
    return bytes;
}

} // namespace

void TestReports::cuts_data()
{
    QTest::addColumn<int>("blockBytes");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("reports");

    QTest::newRow("a short frame") << 10 << 64 << 1;
    QTest::newRow("one byte less than a report") << 63 << 64 << 1;
    QTest::newRow("a whole report") << 64 << 64 << 1;
    QTest::newRow("one byte more than a report") << 65 << 64 << 2;
    QTest::newRow("two reports and a rest") << 130 << 64 << 3;
    QTest::newRow("three whole reports") << 192 << 64 << 3;
    QTest::newRow("large reports") << 1025 << 512 << 3;
    QTest::newRow("nothing") << 0 << 64 << 1;
    QTest::newRow("one byte each") << 3 << 1 << 3;
}

void TestReports::cuts()
{
    QFETCH(int, blockBytes);
    QFETCH(int, size);
    QFETCH(int, reports);
    const QByteArray block = countingBytes(blockBytes);
    const QVector<QByteArray> result = splitIntoReports(block, size);
    QCOMPARE(result.size(), reports);
    QByteArray joined;
    for (const QByteArray &report : result) {
        QCOMPARE(report.size(), size);
        joined.append(report);
    }
    QCOMPARE(joined, block + QByteArray(joined.size() - blockBytes, '\0'));
}

QTEST_APPLESS_MAIN(TestReports)
#include "tst_reports.moc"

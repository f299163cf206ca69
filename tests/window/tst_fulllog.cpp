#include "filedialoguser.h"
#include "log/messagelog.h"
#include "seencells.h"
#include "windowdriver.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

class TestFullLog : public QObject
{
    Q_OBJECT

private slots:
    void aLogThatWasNeverFullSaysNothing();
    void aLogThatWasFullSaysSo_data();
    void aLogThatWasFullSaysSo();
    void theTimeIsThatOfTheFirstRow();
    void aRunningRecordingIsNamed();
    void aClearedLogSaysNothing();
};

namespace {

constexpr int mostRows = 1025;
const QRegularExpression begunAnew("The log was full and began anew at \\d\\d:\\d\\d:\\d\\d; "
                                   "the 1025 rows before are gone\\.");

void appendRows(WindowDriver &window, int rows)
{
    for (int row = 0; row < rows; ++row) {
        window.records().appendStray("x");
    }
    window.window().findChild<MessageLog *>()->bringIn();
}

QString tipOfFirstRow(WindowDriver &window, int column = 0)
{
    window.messages()->scrollToTop();
    return tipOf(*window.messages(), 0, column);
}

} // namespace

void TestFullLog::aLogThatWasNeverFullSaysNothing()
{
    WindowDriver window;
    appendRows(window, mostRows);
    QCOMPARE(tipOfFirstRow(window), QString());
}

void TestFullLog::aLogThatWasFullSaysSo_data()
{
    QTest::addColumn<int>("rows");

    QTest::newRow("once") << mostRows + 2;
    QTest::newRow("twice at once") << 2 * mostRows + 20;
}

void TestFullLog::aLogThatWasFullSaysSo()
{
    QFETCH(int, rows);
    WindowDriver window;
    appendRows(window, rows);
    QCOMPARE(window.messages()->item(0, 0)->text(), QString("1"));
    QCOMPARE(tipOf(*window.messages(), 1, 0), QString());
    for (int column = 0; column < window.messages()->columnCount(); ++column) {
        const QString tip = tipOfFirstRow(window, column);
        QVERIFY2(begunAnew.match(tip).hasMatch(), qPrintable(tip));
        QVERIFY2(!tip.contains("recording"), qPrintable(tip));
    }
}

void TestFullLog::theTimeIsThatOfTheFirstRow()
{
    WindowDriver window;
    appendRows(window, mostRows);
    const QDateTime noon(QDate(2026, 11, 22), QTime(12, 3, 4));
    window.records().appendStray("x", ArrivalTime{noon.toMSecsSinceEpoch() * 1000, 1});
    window.window().findChild<MessageLog *>()->bringIn();
    const QString tip = tipOfFirstRow(window);
    QVERIFY2(tip.contains("12:03:04"), qPrintable(tip));
}

void TestFullLog::aRunningRecordingIsNamed()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("run.jsonl");
    const FileDialogUser user(path);
    WindowDriver window;
    window.click("pushButton_Record");
    appendRows(window, mostRows + 1);
    QString tip = tipOfFirstRow(window);
    QVERIFY2(begunAnew.match(tip).hasMatch(), qPrintable(tip));
    QVERIFY2(tip.contains(QDir::toNativeSeparators(path)), qPrintable(tip));
    window.click("pushButton_Record");
    appendRows(window, mostRows);
    tip = tipOfFirstRow(window);
    QVERIFY2(begunAnew.match(tip).hasMatch(), qPrintable(tip));
    QVERIFY2(!tip.contains("recording"), qPrintable(tip));
}

void TestFullLog::aClearedLogSaysNothing()
{
    WindowDriver window;
    appendRows(window, mostRows + 1);
    window.click("pushButton_ClearMessage");
    appendRows(window, 1);
    QCOMPARE(tipOfFirstRow(window), QString());
}

QTEST_MAIN(TestFullLog)
#include "tst_fulllog.moc"

#include "links/hid/reportinbox.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QSignalSpy>
#include <QtTest>

class TestReportInbox : public QObject
{
    Q_OBJECT

private slots:
    void aReportIsHandedUpAfterAWait();
    void reportsKeepTheirOrder();
    void allCanBeHandedUpAtOnce();
    void anEmptyReportIsPassedOver();
    void aBusyHandlerIsNotAskedAgain();
    void beyondTheCapacityReportsAreDroppedAndTold();
    void tinyReportsAreBoundedToo();
    void nothingIsDroppedWithoutABusyHandler();
};

namespace {

constexpr int reportSize = 512;

QByteArray numberedReport(int number, int size = reportSize)
{
    return QByteArray::number(number).leftJustified(size, '.');
}

/// What an inbox signals, in order: reports by the number they begin with, "-N" for N bytes lost.
class HeardReports : public QObject
{
public:
    explicit HeardReports(ReportInbox &inbox)
    {
        connect(&inbox, &ReportInbox::arrived, this, [this](const QByteArray &report) {
            lines.append(QByteArray(report).replace('.', QByteArray()));
            if (lines.size() == 1) {
                whileBusy();
            }
        });
        connect(&inbox, &ReportInbox::dropped, this,
                [this](qint64 bytes) { lines.append('-' + QByteArray::number(bytes)); });
    }

    QList<QByteArray> lines;
    /// Run by the handler of the first report, as a message box there would be.
    std::function<void()> whileBusy = [] {};
};

void runFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

void TestReportInbox::aReportIsHandedUpAfterAWait()
{
    ReportInbox inbox;
    QSignalSpy arrived(&inbox, &ReportInbox::arrived);
    QElapsedTimer timer;
    timer.start();
    inbox.put("report", {});
    QCOMPARE(arrived.count(), 0);
    QVERIFY(arrived.wait());
    QVERIFY(timer.elapsed() >= 2);
    QCOMPARE(arrived.at(0).at(0).toByteArray(), QByteArray("report"));
}

void TestReportInbox::reportsKeepTheirOrder()
{
    ReportInbox inbox;
    const HeardReports heard(inbox);
    QList<QByteArray> expected;
    for (int i = 0; i < 200; ++i) {
        inbox.put(numberedReport(i), {});
        expected.append(QByteArray::number(i));
        if (i % 10 == 0) {
            runFor(1);
        }
    }
    QTRY_COMPARE(heard.lines, expected);
}

void TestReportInbox::allCanBeHandedUpAtOnce()
{
    ReportInbox inbox;
    const HeardReports heard(inbox);
    inbox.put("1", {});
    inbox.put("2", {});
    inbox.handUpAll();
    QCOMPARE(heard.lines, QList<QByteArray>({"1", "2"}));
    runFor(10);
    QCOMPARE(heard.lines.size(), 2);
}

void TestReportInbox::anEmptyReportIsPassedOver()
{
    ReportInbox inbox;
    const HeardReports heard(inbox);
    inbox.put("", {});
    inbox.put("1", {});
    QTRY_COMPARE(heard.lines, QList<QByteArray>{"1"});
}

void TestReportInbox::aBusyHandlerIsNotAskedAgain()
{
    ReportInbox inbox;
    HeardReports heard(inbox);
    int heardWhileBusy = 0;
    heard.whileBusy = [&] {
        inbox.put("2", {});
        inbox.put("3", {});
        runFor(20);
        inbox.handUpAll();
        heardWhileBusy = heard.lines.size();
    };
    inbox.put("1", {});
    QTRY_COMPARE(heard.lines, QList<QByteArray>({"1", "2", "3"}));
    QCOMPARE(heardWhileBusy, 1);
}

void TestReportInbox::beyondTheCapacityReportsAreDroppedAndTold()
{
    constexpr int most = ReportInbox::capacity / reportSize;
    constexpr int lost = 10;
    ReportInbox inbox;
    HeardReports heard(inbox);
    heard.whileBusy = [&] {
        for (int i = 1; i <= most + lost; ++i) {
            inbox.put(numberedReport(i), {});
        }
    };
    inbox.put(numberedReport(0), {});
    QTRY_VERIFY(heard.lines.size() > most);
    inbox.put("later", {});
    QTRY_COMPARE(heard.lines.constLast(), QByteArray("later"));
    QCOMPARE(heard.lines.at(most), QByteArray::number(most));
    QCOMPARE(heard.lines.at(most + 1), '-' + QByteArray::number(lost * reportSize));
    QCOMPARE(heard.lines.size(), most + 3);
}

void TestReportInbox::tinyReportsAreBoundedToo()
{
    constexpr int many = ReportInbox::capacity / 16;
    ReportInbox inbox;
    HeardReports heard(inbox);
    heard.whileBusy = [&] {
        for (int i = 0; i < many; ++i) {
            inbox.put("x", {});
        }
    };
    inbox.put("0", {});
    QTRY_VERIFY(heard.lines.value(heard.lines.size() - 1).startsWith('-'));
    QVERIFY(heard.lines.size() <= ReportInbox::capacity / 64 + 2);
    QCOMPARE(heard.lines.size() - 2 + heard.lines.constLast().mid(1).toInt(), many);
}

void TestReportInbox::nothingIsDroppedWithoutABusyHandler()
{
    constexpr int many = 2 * ReportInbox::capacity / reportSize;
    ReportInbox inbox;
    const HeardReports heard(inbox);
    for (int i = 0; i < many; ++i) {
        inbox.put(numberedReport(i), {});
    }
    QTRY_COMPARE(heard.lines.size(), many);
    QCOMPARE(heard.lines.constLast(), QByteArray::number(many - 1));
}

QTEST_GUILESS_MAIN(TestReportInbox)
#include "tst_reportinbox.moc"

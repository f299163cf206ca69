#include "log/logtable.h"
#include "log/messagelog.h"
#include "log/recordlog.h"

#include <QTableWidget>
#include <QtTest>

class TestLogPainting : public QObject
{
    Q_OBJECT

private slots:
    void aRowAfterAQuietTimeIsPaintedAtOnce();
    void rowsThatFollowEachOtherSharePaints();
};

namespace {

const QByteArray paintedFrame = QByteArray::fromHex("5AA503030001");

/// Counts how often a widget is painted.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget &widget) { widget.installEventFilter(this); }

    int count() const { return m_count; }

    bool eventFilter(QObject * /*object*/, QEvent *event) override
    {
        m_count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    int m_count = 0;
};

/// A log on the screen.
struct PaintedLog
{
    PaintedLog()
        : log(table, records)
    {
        table.show();
        QVERIFY(QTest::qWaitForWindowExposed(&table));
        QCoreApplication::processEvents();
    }

    LogTable table;
    RecordLog records;
    MessageLog log;
};

} // namespace

void TestLogPainting::aRowAfterAQuietTimeIsPaintedAtOnce()
{
    PaintedLog shown;
    const PaintCounter paints(*shown.table.viewport());
    shown.records.appendSent(paintedFrame, false);
    QVERIFY(shown.table.updatesEnabled());
    QTRY_VERIFY(paints.count() > 0);
}

void TestLogPainting::rowsThatFollowEachOtherSharePaints()
{
    constexpr int rows = 50;
    PaintedLog shown;
    const PaintCounter paints(*shown.table.viewport());
    for (int row = 0; row < rows; ++row) {
        shown.records.appendSent(paintedFrame, false);
        QCoreApplication::processEvents();
    }
    const int before = paints.count();
    QVERIFY2(before < rows / 2, qPrintable(QString::number(before)));
    QTRY_VERIFY(shown.table.updatesEnabled());
}

QTEST_MAIN(TestLogPainting)

#include "tst_logpainting.moc"

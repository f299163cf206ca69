#include "commands/checkedrows.h"

#include <QtTest>

class TestCheckedRows : public QObject
{
    Q_OBJECT

private slots:
    void checkedRowsKeepTheirNumbers();
};

void TestCheckedRows::checkedRowsKeepTheirNumbers()
{
    CommandRow write = emptyRow();
    write.cmd = "10";
    write.addr = "0010";
    write.data = "12 34";
    CommandRow checkedWrite = write;
    checkedWrite.selected = true;
    CommandRow pause = delayRow();
    pause.selected = true;

    const QVector<CheckedRow> checked = checkedRows({write, checkedWrite, emptyRow(), pause});
    QCOMPARE(checked.size(), 2);
    QCOMPARE(checked.at(0).number, 2);
    QCOMPARE(checked.at(0).frameText, QString("1000101234"));
    QCOMPARE(checked.at(1).number, 4);
    QCOMPARE(checked.at(1).frameText, QString("++1000"));
}

QTEST_GUILESS_MAIN(TestCheckedRows)

#include "tst_checkedrows.moc"

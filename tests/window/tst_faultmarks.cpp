#include "log/messagelog.h"
#include "seencells.h"
#include "windowdriver.h"

#include <QtTest>

namespace Column = CommandColumn;

class TestFaultMarks : public QObject
{
    Q_OBJECT

private slots:
    void badHexInACellIsUnderlined_data();
    void badHexInACellIsUnderlined();
    void aMarkChangesNothingElse();
    void aBadHeaderIsUnderlinedWhileTyped();
    void aCrcThatDoesNotFitIsUnderlined_data();
    void aCrcThatDoesNotFitIsUnderlined();
};

void TestFaultMarks::badHexInACellIsUnderlined_data()
{
    QTest::addColumn<QString>("cmd");
    QTest::addColumn<QString>("addr");
    QTest::addColumn<QString>("data");
    QTest::addColumn<int>("column");
    QTest::addColumn<bool>("isMarked");

    const auto add = [](const char *name, const char *cmd, const char *addr, const char *data,
                        int column, bool isMarked) {
        QTest::newRow(name) << cmd << addr << data << column << isMarked;
    };
    add("good data", "5A", "0010", "01 02", Column::Data, false);
    add("odd data", "5A", "0010", "01 2", Column::Data, true);
    add("no hex", "5A", "0010", "xyz0", Column::Data, true);
    add("literal", "5A", "0010", "\"xyz\"", Column::Data, false);
    add("half a CMD", "5", "0010", "01", Column::Cmd, true);
    add("good CMD", "5A", "0010", "01", Column::Cmd, false);
    add("odd address", "5A", "001", "01", Column::Addr, true);
    add("blank address", "5A", "    ", "01", Column::Addr, false);
    add("delay", "++", "", "123", Column::Data, false);
    add("bad delay", "++", "", "12F", Column::Data, true);
    add("marker", "++", "", "123", Column::Cmd, false);
}

void TestFaultMarks::badHexInACellIsUnderlined()
{
    QFETCH(QString, cmd);
    QFETCH(QString, addr);
    QFETCH(QString, data);
    QFETCH(int, column);
    QFETCH(bool, isMarked);
    WindowDriver window;
    window.window().resize(1120, 760);
    window.setRow(1, cmd, addr, data);
    for (const int currentRow : {1, 3}) {
        window.commands()->setCurrentCell(currentRow, Column::Description);
        QCOMPARE(showsRed(pictureOf(*window.commands(), 1, column)), isMarked);
    }
    QCOMPARE(!tipOf(*window.commands(), 1, column).isEmpty(), isMarked);
}

void TestFaultMarks::aMarkChangesNothingElse()
{
    WindowDriver window;
    window.window().resize(1120, 760);
    window.setRow(1, "5A", "0010", "0");
    const QTableWidgetItem *item = window.commands()->item(1, Column::Data);
    QCOMPARE(item->text(), QString("0"));
    QCOMPARE(item->toolTip(), QString());
    QVERIFY(!item->data(Qt::ForegroundRole).isValid());
}

void TestFaultMarks::aBadHeaderIsUnderlinedWhileTyped()
{
    WindowDriver window;
    window.window().resize(1120, 760);
    QLineEdit *header = window.edit("lineEdit_SBytes");
    const auto isMarked = [header] { return showsRed(header->grab().toImage()); };
    QVERIFY(!isMarked());
    QCOMPARE(header->toolTip(), QString());
    QTest::keyClick(header, Qt::Key_End);
    QTest::keyClick(header, Qt::Key_Backspace);
    QCOMPARE(header->text(), QString("0x5A,0xA"));
    QVERIFY(isMarked());
    QVERIFY(!header->toolTip().isEmpty());
    QTest::keyClicks(header, "6");
    QVERIFY(!isMarked());
    QCOMPARE(header->toolTip(), QString());
}

void TestFaultMarks::aCrcThatDoesNotFitIsUnderlined_data()
{
    QTest::addColumn<QByteArray>("frame");
    QTest::addColumn<bool>("withCrc");
    QTest::addColumn<bool>("isReceived");
    QTest::addColumn<QString>("tip");

    const QByteArray good = QByteArray::fromHex("5AA508010300000001840A");
    const QByteArray bad = QByteArray::fromHex("5AA508010300000001840B");
    QTest::newRow("fits") << good << true << true << "";
    QTest::newRow("does not fit") << bad << true << true << "84 0A";
    QTest::newRow("CRC off") << bad << false << true << "";
    QTest::newRow("sent") << bad << true << false << "";
}

void TestFaultMarks::aCrcThatDoesNotFitIsUnderlined()
{
    QFETCH(QByteArray, frame);
    QFETCH(bool, withCrc);
    QFETCH(bool, isReceived);
    QFETCH(QString, tip);
    constexpr int crcColumn = 6;
    WindowDriver window;
    window.window().resize(1120, 760);
    if (isReceived) {
        window.records().appendReceived(frame, withCrc);
    } else {
        window.records().appendSent(frame, withCrc);
    }
    QCOMPARE(window.messageCount(), 1);
    QCOMPARE(showsRed(pictureOf(*window.messages(), 0, crcColumn)), !tip.isEmpty());
    const QString shown = tipOf(*window.messages(), 0, crcColumn);
    QCOMPARE(shown.isEmpty(), tip.isEmpty());
    QVERIFY2(shown.contains(tip), qPrintable(shown));
}

QTEST_MAIN(TestFaultMarks)
#include "tst_faultmarks.moc"

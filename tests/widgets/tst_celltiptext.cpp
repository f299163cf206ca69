#include "widgets/celltiptext.h"

#include <QtTest>

class TestCellTipText : public QObject
{
    Q_OBJECT

private slots:
    void sixteenBytesStandInALine_data();
    void sixteenBytesStandInALine();
    void linesGetLongerWhereThereAreTooMany();
    void whatFindsNoRoomIsReplaced();
};

namespace {

QString bytes(int count)
{
    QString text;
    for (int i = 0; i < count; ++i) {
        text.append(QString::number(i % 256, 16).rightJustified(2, '0').toUpper()).append(' ');
    }
    return text;
}

QString withoutSpace(QString text)
{
    return text.remove(QRegularExpression("\\s"));
}

const TipRoom wide{40, 200};

} // namespace

void TestCellTipText::sixteenBytesStandInALine_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("tip");

    const QString line = "00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F ";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("short") << " 01 02"
                           << " 01 02";
    QTest::newRow("sixteen") << bytes(16) << line;
    QTest::newRow("seventeen") << bytes(17) << line + "\n10 ";
    QTest::newRow("a blank in front") << " " + bytes(17) << " " + line + "\n10 ";
    QTest::newRow("an odd digit first") << "0 " + bytes(16) << "0 " + line.left(45) + "\n0F ";
    QTest::newRow("without blanks") << QString(34, '1') << QString(32, '1') + "\n11";
    QTest::newRow("words stay whole") << "The quick brown fox jumps over the lazy dog"
                                      << "The quick brown fox jumps over \nthe lazy dog";
}

void TestCellTipText::sixteenBytesStandInALine()
{
    QFETCH(QString, text);
    QTEST(cellTipText(text, wide), "tip");
    QCOMPARE(cellTipText(text, wide).remove('\n'), text);
}

void TestCellTipText::linesGetLongerWhereThereAreTooMany()
{
    const QStringList lines = cellTipText(bytes(160), {4, 50}).split('\n');
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.first(), bytes(48));
    QCOMPARE(withoutSpace(lines.join(QString())), withoutSpace(bytes(160)));
}

void TestCellTipText::whatFindsNoRoomIsReplaced()
{
    const QStringList lines = cellTipText(bytes(160), {4, 20}).split('\n');
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.first(), bytes(16));
    QCOMPARE(lines.last(), QStringLiteral("…"));
}

QTEST_APPLESS_MAIN(TestCellTipText)
#include "tst_celltiptext.moc"

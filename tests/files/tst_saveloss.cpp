#include "commandrows.h"
#include "files/linedecoder.h"
#include "files/saveloss.h"

#include <QTextCodec>
#include <QtTest>

class TestSaveLoss : public QObject
{
    Q_OBJECT

private slots:
    void oneRow_data();
    void oneRow();
    void numbersCountEveryRow();
    void encodingThatIsReadAsAnother();
    void message();
    void messageNamesOnlySoMany();
};

namespace {

CommandRow unsavedRow(const QString &description, const QString &cmd, const QString &addr,
                      const QString &data)
{
    CommandRow row;
    row.description = description;
    row.cmd = cmd;
    row.addr = addr;
    row.data = data;
    return row;
}

const QTextCodec &codecNamed(const QByteArray &name)
{
    return *QTextCodec::codecForName(name);
}

QString described(const QVector<AffectedRow> &rows)
{
    static const QStringList names = {"encoding", "unreadable", "changed"};
    QStringList texts;
    for (const AffectedRow &row : rows) {
        texts.append(QString::number(row.number) + ' ' + names.at(static_cast<int>(row.loss)));
    }
    return texts.join(QLatin1String(", "));
}

} // namespace

void TestSaveLoss::oneRow_data()
{
    QTest::addColumn<CommandRow>("row");
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QString>("loss");

    const auto add = [](const char *name, const CommandRow &row, const char *loss,
                        const char *codec = "UTF-8") {
        QTest::newRow(name) << row << QByteArray(codec) << QString(loss);
    };

    add("ordinary", unsavedRow("a", "5A", "0001", "01 02"), "");
    add("empty", emptyRow(), "");
    add("only a description", unsavedRow("a", "", "", ""), "");
    add("data without blanks", unsavedRow("a", "5A", "0001", "0102"), "");
    add("delay", delayRow(), "");
    add("short delay", unsavedRow("a", "++", "", "5"), "");

    add("any script in UTF-8", unsavedRow("é中😀", "5A", "0001", ""), "");
    add("half a character in UTF-8", unsavedRow(QString(QChar(0xD83D)), "5A", "0001", ""),
        "1 encoding");
    add("Chinese in GBK", unsavedRow("啊漢", "5A", "0001", ""), "", "GBK");
    add("not in GBK", unsavedRow("😀", "5A", "0001", ""), "1 encoding", "GBK");
    add("not in Latin-1", unsavedRow("中", "5A", "0001", ""), "1 encoding", "ISO-8859-1");
    add("not in the encoding, in the data", unsavedRow("a", "5A", "0001", "é"), "1 encoding",
        "windows-1251");

    add("comma", unsavedRow("a,b", "5A", "0001", ""), "1 unreadable");
    add("comma alone", unsavedRow(",", "", "", ""), "1 unreadable");
    add("comma in the data", unsavedRow("a", "5A", "0001", "01,02"), "1 unreadable");
    add("comma and encoding", unsavedRow("a,中", "5A", "0001", ""), "1 unreadable", "windows-1251");
    add("comment", unsavedRow("//a", "5A", "0001", ""), "1 unreadable");
    add("too long", unsavedRow(QString(300'000, QLatin1Char('a')), "5A", "0001", ""),
        "1 unreadable");

    add("line end", unsavedRow("a\nb", "5A", "0001", ""), "1 changed");
    add("short CMD", unsavedRow("a", "5", "0001", ""), "1 changed");
    add("long CMD", unsavedRow("a", "5A5A", "0001", ""), "1 changed");
    add("short address", unsavedRow("a", "5A", "01", "02"), "1 changed");
    add("long address", unsavedRow("a", "5A", "00010002", ""), "1 changed");
    add("delay of five digits", unsavedRow("a", "++", "", "10000"), "1 changed");
    add("delay with an address", unsavedRow("a", "++", "0001", "1000"), "1 changed");
    add("punctuation in the data", unsavedRow("a", "5A", "0001", "01 /02"), "1 changed");
}

void TestSaveLoss::oneRow()
{
    QFETCH(CommandRow, row);
    QFETCH(QByteArray, codec);
    QTEST(described(affectedRows({row}, codecNamed(codec))), "loss");
}

void TestSaveLoss::numbersCountEveryRow()
{
    const QVector<CommandRow> rows = {emptyRow(), unsavedRow("a,b", "", "", ""), emptyRow(),
                                      delayRow(), unsavedRow("a", "5", "", "")};
    QCOMPARE(described(affectedRows(rows, utf8Codec())), QStringLiteral("2 unreadable, 5 changed"));
}

void TestSaveLoss::encodingThatIsReadAsAnother()
{
    // Latin-1 has the character, but no command file is read as Latin-1.
    const QVector<CommandRow> rows = {unsavedRow("café", "5A", "0001", "")};
    QCOMPARE(described(affectedRows(rows, codecNamed("ISO-8859-1"))), QStringLiteral("1 changed"));
}

void TestSaveLoss::message()
{
    QCOMPARE(saveLossMessage({}), QString());
    const QString text = saveLossMessage({{2, SaveLoss::Unreadable},
                                          {3, SaveLoss::Encoding},
                                          {7, SaveLoss::Changed},
                                          {9, SaveLoss::Unreadable}});
    const QStringList lines = text.split('\n');
    QCOMPARE(lines.size(), 4);
    QVERIFY(lines.at(1).startsWith(QLatin1String("row 3: some characters")));
    QVERIFY(lines.at(2).startsWith(QLatin1String("row 2, 9: cannot be read again")));
    QVERIFY(lines.at(3).startsWith(QLatin1String("row 7: will be different")));
}

void TestSaveLoss::messageNamesOnlySoMany()
{
    QVector<AffectedRow> rows;
    for (int number = 1; number <= 1000; ++number) {
        rows.append({number, SaveLoss::Unreadable});
    }
    const QString text = saveLossMessage(rows);
    QVERIFY(text.contains(QLatin1String("19, 20 and 980 more: ")));
    QVERIFY(!text.contains(QLatin1String("21")));
}

QTEST_APPLESS_MAIN(TestSaveLoss)
#include "tst_saveloss.moc"

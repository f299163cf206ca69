#include "files/commandfile.h"
#include "files/localtext.h"
#include "frames/hextext.h"

#include <QRandomGenerator>
#include <QTextCodec>
#include <QtTest>

class TestCommandFile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void rowsAndFlag_data();
    void rowsAndFlag();
    void encodings_data();
    void encodings();
    void lineOfTheLongestInstruction();
    void linesTooLong();
    void longCommentsAreSkipped();
    void longCommentsChooseTheCodec();
    void longLinesChooseTheCodec();
    void mostRows();
    void rubbishIsBounded_data();
    void rubbishIsBounded();
    void text();
    void localTextEncoding();
    void randomTablesComeBack();
};

namespace {

QStringList descriptions(const CommandFile &file)
{
    QStringList texts;
    for (const CommandRow &row : file.rows) {
        texts.append(row.description);
    }
    return texts;
}

QByteArray gbk(const char *utf8)
{
    return QTextCodec::codecForName("GBK")->fromUnicode(QString::fromUtf8(utf8));
}

CommandRow rowCalled(const QString &description)
{
    CommandRow row = emptyRow();
    row.description = description;
    return row;
}

/// Makes tables whose rows all lie within the limits of the format.
class RandomTable
{
public:
    explicit RandomTable(quint32 seed)
        : m_random(seed)
    {}

    QVector<CommandRow> make()
    {
        QVector<CommandRow> rows(below(25));
        for (CommandRow &row : rows) {
            row = below(5) == 0 ? pause() : command();
        }
        return rows;
    }

private:
    int below(int end) { return static_cast<int>(m_random.bounded(end)); }

    QString anyOf(const QString &characters, int length)
    {
        QString text;
        for (int i = 0; i < length; ++i) {
            text.append(characters.at(below(characters.size())));
        }
        return text;
    }

    QString description()
    {
        return anyOf(QStringLiteral("aZ 09/()+%_\t\"';.:é啊漢ß€Ж"), below(12))
            .replace(QLatin1String("//"), QLatin1String("/"));
    }

    QString hex(int digits) { return anyOf(QStringLiteral("0123456789ABCDEFabcdef"), digits); }

    CommandRow command()
    {
        CommandRow row = rowCalled(description());
        row.selected = below(2) == 0;
        row.cmd = below(4) == 0 ? QString() : hex(2);
        row.addr = below(4) == 0 ? QString() : hex(4);
        row.data = groupPairsFromRight(hex(below(40)));
        return row;
    }

    CommandRow pause()
    {
        CommandRow row = delayRow();
        row.description = description();
        row.selected = below(2) == 0;
        // As loading fills it up.
        row.data = QString::number(below(10'000)).leftJustified(4);
        return row;
    }

    QRandomGenerator m_random;
};

bool isWritten(const CommandRow &row)
{
    return !row.description.isEmpty() || !row.cmd.isEmpty() || !row.addr.isEmpty() ||
           !row.data.isEmpty();
}

QString visibleCells(const CommandRow &row)
{
    const QString selected = row.selected ? QStringLiteral("x") : QString();
    return QStringList{row.description, selected, row.cmd, row.addr, row.data}.join('|');
}

QStringList visibleCells(const QVector<CommandRow> &rows)
{
    QStringList cells;
    for (const CommandRow &row : rows) {
        if (isWritten(row)) {
            cells.append(visibleCells(row));
        }
    }
    return cells;
}

/// The same text where lines end with LF alone.
QByteArray withPlainEnds(QByteArray text)
{
    return text.replace("\r\n", "\n");
}

} // namespace

void TestCommandFile::initTestCase()
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

void TestCommandFile::rowsAndFlag_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<bool>("invalid");

    const auto add = [](const char *name, const QByteArray &bytes, const QStringList &rows,
                        bool invalid) { QTest::newRow(name) << bytes << rows << invalid; };

    add("nothing", "", {}, false);
    add("comments and empty lines", "// a,b\n\n\r\n//\n", {}, false);
    add("one line", "a,5A0001\n", {"a"}, false);
    add("no line end at the end", "a,5A0001\nb,5A0002", {"a", "b"}, false);
    add("CR LF", "a,5A0001\r\n\r\n// c\r\nb,5A0002\r\n", {"a", "b"}, false);
    add("CR anywhere", "\ra\r\rb,5A0001\n", {"ab"}, false);
    add("CR LF alone", "\r\n", {}, false);
    add("CR does not end a line", "a,5A0001\rb,5A0002\n", {"a"}, false);
    add("comment behind a CR", "\r//a,5A0001\n", {}, false);
    add("four fields among others", "a,5A0001\na,b,c,d\nb,5A0002\n", {"a", "b"}, true);
    add("one field", "a\n", {}, true);
    add("a blank line is no empty line", " \n", {}, true);
    add("many invalid lines", "a\nb\nc,5A0001\nd\n", {"c"}, true);
    add("a zero byte", QByteArray("a\0b,5A0001\n", 11), {QString::fromLatin1("a\0b", 3)}, false);
    add("byte-order mark", "\xEF\xBB\xBF// a,5A0001\nb,5A0001\n", {"b"}, false);
}

void TestCommandFile::rowsAndFlag()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, rows);
    const CommandFile file = readCommandFile(bytes);
    QCOMPARE(descriptions(file), rows);
    QTEST(file.hasInvalidLines, "invalid");
    QVERIFY(!file.hasTooManyRows);
}

void TestCommandFile::encodings_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("rows");

    const QByteArray frame = ",5A0001\n";
    // Understood by both encodings, as different characters.
    const QByteArray both = QByteArrayLiteral("\xC3\xA9");
    // Three bytes each, of which GBK takes two and stumbles over the third.
    const QByteArray onlyUtf8 = QByteArray("中") + frame;
    const QByteArray onlyGbk = gbk("啊漢") + frame;

    QTest::newRow("UTF-8") << onlyUtf8 << QStringList{"中"};
    QTest::newRow("GBK") << onlyGbk << QStringList{"啊漢"};
    QTest::newRow("GBK stays in force")
        << onlyGbk + both + frame << QStringList{"啊漢", QString::fromUtf8("茅")};
    QTest::newRow("before the change") << both + frame + onlyGbk << QStringList{"é", "啊漢"};
    QTest::newRow("and back") << onlyGbk + QByteArray("中,") + "5A0001\n" + both + frame
                              << QStringList{"啊漢", "中", "é"};
    QTest::newRow("back and forth")
        << onlyUtf8 + onlyGbk + onlyUtf8 + onlyGbk << QStringList{"中", "啊漢", "中", "啊漢"};
    QTest::newRow("right in neither")
        << QByteArray("\xAD") + frame + both + frame
        << QStringList{QString(QChar(QChar::ReplacementCharacter)), QString::fromUtf8("茅")};
    QTest::newRow("a comment changes it too")
        << "// " + gbk("啊") + "\n" + both + frame << QStringList{QString::fromUtf8("茅")};
    QTest::newRow("an invalid line too")
        << gbk("啊") + "\n" + both + frame << QStringList{QString::fromUtf8("茅")};
    QTest::newRow("GBK that looks like the beginning of UTF-8")
        << QByteArray("\xE4\xB8") + frame << QStringList{QString::fromUtf8("涓")};
    QTest::newRow("the character for invalid ones, in UTF-8")
        << QByteArray("\xEF\xBF\xBD") + frame + both + frame
        << QStringList{QString(QChar(QChar::ReplacementCharacter)), "é"};
}

void TestCommandFile::encodings()
{
    QFETCH(QByteArray, bytes);
    QTEST(descriptions(readCommandFile(bytes)), "rows");
}

void TestCommandFile::lineOfTheLongestInstruction()
{
    constexpr int longestInstruction = 65535;
    const QByteArray data = QByteArray("01 ").repeated(longestInstruction - 3);
    const CommandFile file = readCommandFile("a,select,5A 0001 " + data);
    QCOMPARE(file.rows.size(), 1);
    QVERIFY(!file.hasInvalidLines);
    QCOMPARE(file.rows.first().data, QString::fromLatin1(data.chopped(1)));
    QCOMPARE(file.rows.first().crc.size(), 5);
}

void TestCommandFile::linesTooLong()
{
    const QByteArray start = "a,5A0001 ";
    const QByteArray longest =
        start + QByteArray(longestCommandLine - start.size() - 1, '1') + '\n';
    const CommandFile fits = readCommandFile(longest + "b,5A0001\n");
    QCOMPARE(descriptions(fits), QStringList({"a", "b"}));
    QVERIFY(!fits.hasInvalidLines);

    const CommandFile tooLong = readCommandFile("a" + longest + "b,5A0001\n");
    QCOMPARE(descriptions(tooLong), QStringList({"b"}));
    QVERIFY(tooLong.hasInvalidLines);
}

void TestCommandFile::longCommentsAreSkipped()
{
    const QByteArray comment = "//" + QByteArray(longestCommandLine, ',') + '\n';
    const CommandFile file = readCommandFile(comment + "a,5A0001\n" + comment);
    QCOMPARE(descriptions(file), QStringList("a"));
    QVERIFY(!file.hasInvalidLines);
}

void TestCommandFile::longCommentsChooseTheCodec()
{
    // The bytes of the command fit both encodings, so it is the comment that tells.
    const QByteArray command = "\xC2\xB0,5A0001\n";
    QCOMPARE(descriptions(readCommandFile(command)), QStringList("°"));
    for (const int length : {10, longestCommandLine}) {
        const QByteArray comment = "//" + gbk("漢") + QByteArray(length, ' ') + '\n';
        const CommandFile file = readCommandFile(comment + command);
        QCOMPARE(descriptions(file), QStringList("掳"));
        QVERIFY(!file.hasInvalidLines);
    }
}

void TestCommandFile::longLinesChooseTheCodec()
{
    const QByteArray tooLong = gbk("漢") + QByteArray(longestCommandLine, ' ') + ",5A0001\n";
    const CommandFile file = readCommandFile(tooLong + "\xC2\xB0,5A0001\n");
    QCOMPARE(descriptions(file), QStringList("掳"));
    QVERIFY(file.hasInvalidLines);
}

void TestCommandFile::mostRows()
{
    const QByteArray most = QByteArray("a,5A0001\n").repeated(mostCommandRows);
    const CommandFile fits = readCommandFile(most + "// nothing\n\nwrong\n");
    QCOMPARE(fits.rows.size(), mostCommandRows);
    QVERIFY(!fits.hasTooManyRows);
    QVERIFY(fits.hasInvalidLines);

    const CommandFile tooMany = readCommandFile(most + "b,5A0001\nwrong\n");
    QCOMPARE(tooMany.rows.size(), mostCommandRows);
    QVERIFY(tooMany.hasTooManyRows);
    QVERIFY(!tooMany.hasInvalidLines);
}

void TestCommandFile::rubbishIsBounded_data()
{
    QTest::addColumn<QByteArray>("unit");
    QTest::addColumn<bool>("invalid");

    QTest::newRow("zero bytes") << QByteArray(1, '\0') << true;
    QTest::newRow("letters without a line end") << QByteArray("a") << true;
    QTest::newRow("commas") << QByteArray(",") << true;
    QTest::newRow("line ends") << QByteArray("\n") << false;
    QTest::newRow("comments") << QByteArray("//\n") << false;
    QTest::newRow("invalid lines") << QByteArray("a\n") << true;
    QTest::newRow("bytes right in neither encoding") << QByteArray("\xAD,,,\n") << true;
}

void TestCommandFile::rubbishIsBounded()
{
    QFETCH(QByteArray, unit);
    const CommandFile file = readCommandFile(unit.repeated(1'000'000 / unit.size()));
    QVERIFY(file.rows.isEmpty());
    QTEST(file.hasInvalidLines, "invalid");
}

void TestCommandFile::text()
{
    CommandRow read = rowCalled(QStringLiteral("Read"));
    read.selected = true;
    read.cmd = QStringLiteral("03");
    read.addr = QStringLiteral("0010");
    const QVector<CommandRow> rows = {emptyRow(), read, emptyRow(), delayRow()};
    QCOMPARE(commandFileText(rows),
             QStringLiteral("Read,select,03 0010 \nDaley(ms),unselect,++  1000\n"));
    QCOMPARE(commandFileText(QVector<CommandRow>(9, emptyRow())), QString());
}

void TestCommandFile::localTextEncoding()
{
    const QString text = QStringLiteral("é\n");
    QTextCodec *const local = QTextCodec::codecForLocale();
    QCOMPARE(withPlainEnds(toLocalText(text)), QByteArray("\xC3\xA9\n"));
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
    const QByteArray latin1 = toLocalText(text);
    QTextCodec::setCodecForLocale(local);
    QCOMPARE(withPlainEnds(latin1), QByteArray("\xE9\n"));
}

void TestCommandFile::randomTablesComeBack()
{
    for (quint32 seed = 0; seed < 1000; ++seed) {
        const QVector<CommandRow> rows = RandomTable(seed).make();
        const QByteArray saved = toLocalText(commandFileText(rows));
        const CommandFile loaded = readCommandFile(saved);
        QVERIFY(!loaded.hasInvalidLines);
        QCOMPARE(visibleCells(loaded.rows), visibleCells(rows));
        QCOMPARE(toLocalText(commandFileText(loaded.rows)), saved);
    }
}

QTEST_GUILESS_MAIN(TestCommandFile)
#include "tst_commandfile.moc"

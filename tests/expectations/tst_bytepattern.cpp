#include "expectations/bytepattern.h"

#include <QtTest>

class TestBytePattern : public QObject
{
    Q_OBJECT

private slots:
    void matches_data();
    void matches();
    void faults_data();
    void faults();
    void textIsAsWritten();
    void gapsMatchAsEverySplitDoes();
    void manyWaysToReadAreWalkedOnce();
};

namespace {

QByteArray bytesOfHex(const char *digits)
{
    return QByteArray::fromHex(digits);
}

/// What a pattern means, tried in every way.
bool fitsInSomeWay(const QStringList &parts, const QByteArray &bytes)
{
    if (parts.isEmpty()) {
        return bytes.isEmpty();
    }
    const QStringList rest = parts.mid(1);
    if (parts.first() != QLatin1String("**")) {
        const QByteArray wanted = QByteArray::fromHex(parts.first().toLatin1());
        return bytes.startsWith(wanted) && fitsInSomeWay(rest, bytes.mid(1));
    }
    for (int taken = 0; taken <= bytes.size(); ++taken) {
        if (fitsInSomeWay(rest, bytes.mid(taken))) {
            return true;
        }
    }
    return false;
}

} // namespace

void TestBytePattern::matches_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isMatch");

    const auto row = [](const char *name, const char *pattern, const char *bytes, bool isMatch) {
        QTest::newRow(name) << QString(pattern) << bytesOfHex(bytes) << isMatch;
    };
    row("same bytes", "03 0010", "030010", true);
    row("other byte", "03 0010", "030011", false);
    row("one byte less", "03 0010", "0300", false);
    row("one byte more", "03 0010", "03001000", false);
    row("nothing", "03", "", false);
    row("small letters", "aB", "AB", true);
    row("any byte", "03 ?? 10", "03FF10", true);
    row("any byte must be there", "03 ??", "03", false);
    row("low half open", "4?", "4F", true);
    row("low half open, other high half", "4?", "5F", false);
    row("high half open", "?4", "F4", true);
    row("high half open, other low half", "?4", "45", false);
    row("pairs without blanks", "03??4?", "03AA4B", true);
    row("gap of nothing", "03 **", "03", true);
    row("gap of some", "03 **", "030102", true);
    row("gap alone, nothing", "**", "", true);
    row("gap alone", "**", "0102", true);
    row("gap in front", "** 10", "0102031010", true);
    row("gap in front, other end", "** 10", "1011", false);
    row("gap between", "01 ** 02", "01FFFF02", true);
    row("gap between, nothing", "01 ** 02", "0102", true);
    row("gap between, end missing", "01 ** 02", "01FFFF", false);
    row("bytes of a gap aren't taken twice", "01 02 ** 02 03", "010203", false);
    row("two gaps", "** 01 ** 02", "000100000200FF02", true);
    row("four gaps", "** 01 ** 02 ** 03 **", "010203", true);
    row("gap and halves", "** 4? ?1", "0041424F01", true);
}

void TestBytePattern::matches()
{
    QFETCH(QString, pattern);
    QFETCH(QByteArray, bytes);
    const Parsed<BytePattern> parsed = BytePattern::parse(pattern);
    QVERIFY2(parsed.value, qPrintable(parsed.fault.words));
    QTEST(parsed.value->matches(bytes), "isMatch");
}

void TestBytePattern::faults_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<int>("column");

    QTest::newRow("nothing") << "" << 1;
    QTest::newRow("blanks") << "   " << 1;
    QTest::newRow("half a byte") << "0" << 1;
    QTest::newRow("half a byte at the end") << "03 001" << 6;
    QTest::newRow("half a byte in between") << "03 0 10" << 4;
    QTest::newRow("no digit") << "03 0G" << 4;
    QTest::newRow("no digit in front") << "G0" << 1;
    QTest::newRow("one asterisk") << "03 *4" << 4;
    QTest::newRow("asterisk and mark") << "*?" << 1;
    QTest::newRow("three asterisks") << "***" << 3;
    QTest::newRow("a fifth gap") << "** 01 ** 02 ** 03 ** 04 **" << 25;
}

void TestBytePattern::faults()
{
    QFETCH(QString, pattern);
    const Parsed<BytePattern> parsed = BytePattern::parse(pattern);
    QVERIFY(!parsed.value);
    QVERIFY(!parsed.fault.words.isEmpty());
    QTEST(parsed.fault.column, "column");
}

void TestBytePattern::textIsAsWritten()
{
    QCOMPARE(BytePattern::parse(" 03 00aB ?? ** ").value->text(), QString("03 00AB ?? **"));
}

/// All patterns of up to five parts over two bytes and a gap, against all texts of up to five
/// bytes.
void TestBytePattern::gapsMatchAsEverySplitDoes()
{
    const QStringList kinds{"01", "02", "**"};
    const auto digitsOf = [](int number, int base, int count) {
        QVector<int> digits;
        for (int i = 0; i < count; ++i) {
            digits.append(number % base);
            number /= base;
        }
        return digits;
    };
    for (int length = 1, patterns = 3; length <= 5; ++length, patterns *= 3) {
        for (int number = 0; number < patterns; ++number) {
            QStringList parts;
            for (const int digit : digitsOf(number, 3, length)) {
                parts.append(kinds.at(digit));
            }
            const Parsed<BytePattern> pattern = BytePattern::parse(parts.join(' '));
            if (parts.count("**") > BytePattern::mostGaps) {
                QVERIFY(!pattern.value);
                continue;
            }
            for (int size = 0; size <= 5; ++size) {
                for (int text = 0; text < (1 << size); ++text) {
                    QByteArray bytes;
                    for (const int digit : digitsOf(text, 2, size)) {
                        bytes.append(static_cast<char>(digit + 1));
                    }
                    if (pattern.value->matches(bytes) != fitsInSomeWay(parts, bytes)) {
                        QFAIL(qPrintable(parts.join(' ') + " and " + bytes.toHex(' ')));
                    }
                }
            }
        }
    }
}

/// Tried one after the other, the ways to read this would outlast the test.
void TestBytePattern::manyWaysToReadAreWalkedOnce()
{
    const QString run = QString("00").repeated(200);
    const Parsed<BytePattern> pattern =
        BytePattern::parse(QStringList{"**", run, "**", run, "**", run, "**", run, "01"}.join(' '));
    QVERIFY(pattern.value);
    QVERIFY(!pattern.value->matches(QByteArray(16383, '\0')));
    QVERIFY(pattern.value->matches(QByteArray(16383, '\0') + '\x01'));
}

QTEST_APPLESS_MAIN(TestBytePattern)

#include "tst_bytepattern.moc"

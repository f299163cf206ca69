#include "files/linedecoder.h"

#include <QTextCodec>
#include <QtTest>

class TestLineDecoder : public QObject
{
    Q_OBJECT

private slots:
    void lines_data();
    void lines();
    void changesOver();
    void plainLinesAskNoCodec();
    void fallsBackToGbk();
};

void TestLineDecoder::lines_data()
{
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QString>("text");

    const auto add = [](const char *name, const char *codec, const char *line, bool valid,
                        const char *text) {
        QTest::newRow(name) << QByteArray(codec) << QByteArray(line) << valid
                            << QString::fromUtf8(text);
    };

    add("nothing", "UTF-8", "", true, "");
    add("ASCII", "UTF-8", "a b\n", true, "a b");
    add("CR and LF", "UTF-8", "\ra\r\n", true, "a");
    add("UTF-8", "UTF-8", "é中😀\n", true, "é中😀");
    add("UTF-8 without line end", "UTF-8", "中", true, "中");
    add("cut off before the line end", "UTF-8", "a\xE4\xB8\n", false, "a\uFFFD\uFFFD");
    add("cut off at the end", "UTF-8", "a\xE4\xB8", false, "a\uFFFD\uFFFD");
    add("overlong", "UTF-8", "\xC0\x80", false, "\uFFFD\uFFFD");
    add("the replacement character itself", "UTF-8", "\uFFFD\n", true, "\uFFFD");
    add("byte-order mark", "UTF-8", "\xEF\xBB\xBFz\n", true, "z");
    add("GBK", "GBK", "\xB0\xA1\n", true, "啊");
    add("only in GBK, not in GB2312", "GBK", "\x9D\x68", true, "漢");
    add("GBK without its second byte", "GBK", "a\xB0\n", false, "a\uFFFD");
    add("GBK cut off at the end", "GBK", "a\xB0", false, "a\uFFFD");
    add("GBK with a wrong second byte", "GBK", "\xB0,b", false, "\uFFFD,b");
}

void TestLineDecoder::lines()
{
    QFETCH(QByteArray, codec);
    QFETCH(QByteArray, line);
    const DecodedLine decoded = decodeLine(*QTextCodec::codecForName(codec), line);
    QTEST(decoded.valid, "valid");
    QTEST(decoded.text, "text");
}

void TestLineDecoder::changesOver()
{
    LineDecoder decoder(utf8Codec(), *QTextCodec::codecForName("ISO-8859-1"));
    QCOMPARE(decoder.decode("\xC3\xA9\n"), QStringLiteral("é"));
    QCOMPARE(decoder.decode("\xE9\n"), QStringLiteral("é"));
    QCOMPARE(decoder.decode("\xC3\xA9\n"), QString::fromUtf8("Ã©"));
}

namespace {

/// Counts how often it is asked.
class CountingCodec : public QTextCodec
{
public:
    QByteArray name() const override { return "counting"; }
    int mibEnum() const override { return 0; }

    mutable int questions = 0;

protected:
    QString convertToUnicode(const char *in, int length, ConverterState *) const override
    {
        ++questions;
        return QString::fromUtf8(in, length);
    }
    QByteArray convertFromUnicode(const QChar *, int, ConverterState *) const override
    {
        return {};
    }
};

} // namespace

void TestLineDecoder::plainLinesAskNoCodec()
{
    const auto *const codec = new CountingCodec; // Qt keeps it, and deletes it at the end.
    LineDecoder decoder(*codec, *codec);
    QCOMPARE(decoder.decode("\n"), QString());
    QCOMPARE(decoder.decode("\r\n"), QString());
    QCOMPARE(decoder.decode("// a\r\r,b\n"), QStringLiteral("// a,b"));
    QCOMPARE(codec->questions, 0);
    QCOMPARE(decoder.decode("é"), QStringLiteral("é"));
    QCOMPARE(codec->questions, 1);
}

void TestLineDecoder::fallsBackToGbk()
{
    QCOMPARE(fallbackCodec().name(), QByteArray("GBK"));
    QCOMPARE(utf8Codec().name(), QByteArray("UTF-8"));
}

QTEST_APPLESS_MAIN(TestLineDecoder)
#include "tst_linedecoder.moc"

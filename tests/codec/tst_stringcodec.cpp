#include "codec/stringcodec.h"
#include "frames/hextext.h"
#include "valuetypes.h"

#include <QRandomGenerator>
#include <QTextCodec>
#include <QtTest>

class TestStringCodec : public QObject
{
    Q_OBJECT

private slots:
    void codecsAreThere();
    void encode_data();
    void encode();
    void gbkOnlyCharacterUnderGb2312();
    void unencodableIsNotedOnce();
    void invisibleCharactersAreNotDropped();
    void realQuestionMarkIsNoLoss();
    void withoutCodecOnlyAscii();
    void decode_data();
    void decode();
    void terminator_data();
    void terminator();
    void terminatorIsTakenOff_data();
    void terminatorIsTakenOff();
    void everyUtf16UnitSurvives();
    void everyGbkCharacterSurvives_data();
    void everyGbkCharacterSurvives();
    void onlyUnencodableBecomesQuestionMark_data();
    void onlyUnencodableBecomesQuestionMark();
    void reports();

private:
    static void addCodecRows();
};

void TestStringCodec::codecsAreThere()
{
    QVERIFY(textCodec(StringEncoding::Gb2312));
    QVERIFY(textCodec(StringEncoding::Gbk));
    QVERIFY(!textCodec(StringEncoding::Unicode));
}

void TestStringCodec::encode_data()
{
    QTest::addColumn<StringEncoding>("encoding");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("hex");
    QTest::addColumn<QString>("unencodable");

    const auto row = [](const char *name, StringEncoding encoding, const char *text,
                        const char *hex, const char *unencodable = "") {
        QTest::newRow(name) << encoding << QString::fromUtf8(text) << QString(hex)
                            << QString::fromUtf8(unencodable);
    };
    row("GB2312 empty", StringEncoding::Gb2312, "", "");
    row("GB2312 ASCII", StringEncoding::Gb2312, "AB", "41 42 ");
    row("GB2312 ah", StringEncoding::Gb2312, "啊", "B0 A1 ");
    row("GB2312 mixed", StringEncoding::Gb2312, "啊A", "B0 A1 41 ");
    row("GB2312 neither has", StringEncoding::Gb2312, "A한B", "41 3F 42 ", "한");
    row("GBK empty", StringEncoding::Gbk, "", "");
    row("GBK ah", StringEncoding::Gbk, "啊", "B0 A1 ");
    row("GBK only", StringEncoding::Gbk, "镕", "E9 46 ");
    row("GBK neither has", StringEncoding::Gbk, "한", "3F ", "한");
    row("GBK pair is one character", StringEncoding::Gbk, "a😀b", "61 3F 62 ", "😀");
    row("Unicode empty", StringEncoding::Unicode, "", "");
    row("Unicode ASCII", StringEncoding::Unicode, "A", "00 41 ");
    row("Unicode ah", StringEncoding::Unicode, "啊", "55 4A ");
    row("Unicode pair", StringEncoding::Unicode, "😀", "D8 3D DE 00 ");
}

void TestStringCodec::encode()
{
    QFETCH(StringEncoding, encoding);
    QFETCH(QString, text);
    const EncodedText encoded = encodeString(text, encoding);
    QTEST(encoded.hex, "hex");
    QTEST(encoded.unencodable, "unencodable");
}

/// Depending on the system the codec named "GB2312" has this character or not. Both are right, as
/// long as its absence does not go unnoticed.
void TestStringCodec::gbkOnlyCharacterUnderGb2312()
{
    const QString text = QString::fromUtf8("镕");
    const EncodedText encoded = encodeString(text, StringEncoding::Gb2312);
    if (textCodec(StringEncoding::Gb2312) == textCodec(StringEncoding::Gbk)) {
        QCOMPARE(encoded.hex, QString("E9 46 "));
        QVERIFY(encoded.unencodable.isEmpty());
    } else {
        QCOMPARE(encoded.hex, QString("3F "));
        QCOMPARE(encoded.unencodable, text);
    }
}

void TestStringCodec::unencodableIsNotedOnce()
{
    const QString many = QString::fromUtf8("가각간갇갈감갑값갓갔강개객");
    QCOMPARE(encodeString(many + many, StringEncoding::Gbk).unencodable, many.left(10));
    QCOMPARE(encodeString(many, StringEncoding::Gbk).hex, QString("3F ").repeated(many.size()));

    const QString high(QChar(0xD83D));
    QCOMPARE(encodeString(high + "A" + high, StringEncoding::Gbk).hex, QString("3F 41 3F "));
    QCOMPARE(encodeString(high + "A" + high, StringEncoding::Gbk).unencodable, high);
}

/// U+FEFF and its like have no glyph, and a codec may drop them instead of replacing them.
void TestStringCodec::invisibleCharactersAreNotDropped()
{
    const QString mark(QChar(0xFEFF));
    QCOMPARE(encodeString("a" + mark, StringEncoding::Gbk).hex, QString("61 3F "));
    QCOMPARE(encodeString("a" + mark, StringEncoding::Gbk).unencodable, mark);
    QCOMPARE(encodeString("a" + mark, StringEncoding::Unicode).hex, QString("00 61 FE FF "));
    QCOMPARE(encodeString("a" + mark, StringEncoding::Unicode).unencodable, QString());
}

void TestStringCodec::realQuestionMarkIsNoLoss()
{
    const EncodedText encoded = encodeString("?", StringEncoding::Gbk);
    QCOMPARE(encoded.hex, QString("3F "));
    QVERIFY(encoded.unencodable.isEmpty());
}

void TestStringCodec::withoutCodecOnlyAscii()
{
    const EncodedText encoded = encodeWith(nullptr, QString::fromUtf8("A啊~"));
    QCOMPARE(encoded.hex, QString("41 3F 7E "));
    QCOMPARE(encoded.unencodable, QString::fromUtf8("啊"));
    QCOMPARE(decodeWith(nullptr, QByteArray("A\xB0\xA1~")), QString::fromUtf8("A��~"));
}

void TestStringCodec::decode_data()
{
    QTest::addColumn<StringEncoding>("encoding");
    QTest::addColumn<QString>("hex");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, StringEncoding encoding, const char *hex,
                        const QString &text) {
        QTest::newRow(name) << encoding << QString(hex) << text;
    };
    row("GB2312 empty", StringEncoding::Gb2312, "", "");
    row("GB2312", StringEncoding::Gb2312, "B0 A1 41", QString::fromUtf8("啊A"));
    row("GB2312 without blanks", StringEncoding::Gb2312, "b0a141", QString::fromUtf8("啊A"));
    row("GB2312 terminator is read", StringEncoding::Gb2312, "41 00", QString("A") + QChar(0));
    row("GB2312 odd digits", StringEncoding::Gb2312, "1 42", QString(QChar(1)) + "B");
    row("GB2312 no hex", StringEncoding::Gb2312, "4G 42", QString(QChar(0)) + "B");
    row("GBK", StringEncoding::Gbk, "E9 46", QString::fromUtf8("镕"));
    row("Unicode empty", StringEncoding::Unicode, "", "");
    row("Unicode", StringEncoding::Unicode, "00 41 55 4A", QString::fromUtf8("A啊"));
    row("Unicode pair", StringEncoding::Unicode, "D8 3D DE 00", QString::fromUtf8("😀"));
    row("Unicode mark is a character", StringEncoding::Unicode, "FE FF", QString(QChar(0xFEFF)));
    row("Unicode odd bytes", StringEncoding::Unicode, "41 00 42", QString("AB"));
    row("Unicode no hex", StringEncoding::Unicode, "00 4G 00 42", QString(QChar(0)) + "B");
}

void TestStringCodec::decode()
{
    QFETCH(StringEncoding, encoding);
    QFETCH(QString, hex);
    QTEST(decodeString(hex, encoding), "text");
}

void TestStringCodec::terminator_data()
{
    QTest::addColumn<QString>("encoded");
    QTest::addColumn<QString>("terminated");

    QTest::newRow("no byte") << ""
                             << "00 00";
    QTest::newRow("one byte") << "41 "
                              << "41 00";
    QTest::newRow("two bytes") << "41 42 "
                               << "41 42 00 00";
    QTest::newRow("three bytes") << "41 42 43 "
                                 << "41 42 43 00";
}

void TestStringCodec::terminator()
{
    QFETCH(QString, encoded);
    QTEST(withTerminator(encoded), "terminated");
}

void TestStringCodec::terminatorIsTakenOff_data()
{
    QTest::addColumn<QString>("decoded");
    QTest::addColumn<QString>("text");

    const QChar zero(0);
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("none") << "A"
                          << "A";
    QTest::newRow("one") << QString("A") + zero << "A";
    QTest::newRow("two") << QString("A") + zero + zero << "A";
    QTest::newRow("only zeros") << QString(5, zero) << "";
    QTest::newRow("inside") << QString("A") + zero + "B" + zero << QString("A") + zero + "B";
    QTest::newRow("in front") << zero + QString("A") << zero + QString("A");
}

void TestStringCodec::terminatorIsTakenOff()
{
    QFETCH(QString, decoded);
    QTEST(withoutTerminator(decoded), "text");
}

void TestStringCodec::everyUtf16UnitSurvives()
{
    QString hex;
    for (quint64 unit = 0; unit <= 0xFFFF; ++unit) {
        hex += paddedHex(unit, 4);
    }
    const QString text = decodeString(hex, StringEncoding::Unicode);
    QCOMPARE(withoutBlanks(encodeString(text, StringEncoding::Unicode).hex), hex);

    QRandomGenerator random(16);
    for (int round = 0; round < 200; ++round) {
        QByteArray bytes;
        for (int i = random.bounded(1, 50) * 2; i > 0; --i) {
            bytes.append(static_cast<char>(random.bounded(256)));
        }
        const QString some = formatHexBytes(bytes);
        const QString decoded = decodeString(some, StringEncoding::Unicode);
        QCOMPARE(encodeString(decoded, StringEncoding::Unicode).hex, some);
    }
}

void TestStringCodec::addCodecRows()
{
    QTest::addColumn<StringEncoding>("encoding");
    QTest::newRow("GB2312") << StringEncoding::Gb2312;
    QTest::newRow("GBK") << StringEncoding::Gbk;
}

void TestStringCodec::everyGbkCharacterSurvives_data()
{
    addCodecRows();
}

void TestStringCodec::everyGbkCharacterSurvives()
{
    QFETCH(StringEncoding, encoding);
    QStringList characters;
    for (char32_t unit = 0; unit <= 0xFFFF; ++unit) {
        const QString character = QChar(static_cast<char16_t>(unit));
        const EncodedText encoded = encodeString(character, encoding);
        if (encoded.unencodable.isEmpty()) {
            QCOMPARE(decodeString(encoded.hex, encoding), character);
            characters.append(encoded.hex);
        }
    }
    // The set of GB2312 alone has 7445 characters beside ASCII.
    QVERIFY(characters.size() >= 7445 + 128);

    QRandomGenerator random(2312);
    for (int round = 0; round < 200; ++round) {
        QString hex;
        for (int i = random.bounded(1, 100); i > 0; --i) {
            hex += characters.at(random.bounded(characters.size()));
        }
        QCOMPARE(encodeString(decodeString(hex, encoding), encoding).hex, hex);
    }
}

void TestStringCodec::onlyUnencodableBecomesQuestionMark_data()
{
    addCodecRows();
}

void TestStringCodec::onlyUnencodableBecomesQuestionMark()
{
    QFETCH(StringEncoding, encoding);
    for (char32_t unit = 0; unit <= 0xFFFF; ++unit) {
        const QString character = QChar(static_cast<char16_t>(unit));
        const EncodedText encoded = encodeString(character, encoding);
        const bool isLost = encoded.hex == "3F " && unit != '?';
        QCOMPARE(encoded.unencodable, isLost ? character : QString());
    }
}

void TestStringCodec::reports()
{
    const QString lost = QString::fromUtf8("한");
    const QTextCodec *codec = QTextCodec::codecForName("UTF-8");
    const QString cannot = unencodableReport(lost, StringEncoding::Gbk, codec);
    const QString missing = unencodableReport(lost, StringEncoding::Gb2312, nullptr);
    QCOMPARE(cannot, QString::fromUtf8("GBK has no bytes for: 한<br>"
                                       "\"?\" is written in their place."));
    QCOMPARE(missing, QString::fromUtf8("This system has no GB2312 codec. Not written: 한<br>"
                                        "\"?\" is written in their place."));
}

QTEST_APPLESS_MAIN(TestStringCodec)
#include "tst_stringcodec.moc"

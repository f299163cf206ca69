#include "session/frameformat.h"

#include <QtTest>

class TestFrameFormat : public QObject
{
    Q_OBJECT

private slots:
    void theHeaderTextGivesTheStartBytes_data();
    void theHeaderTextGivesTheStartBytes();
    void fieldsAreLeftOut();
    void crcIsOffAtFirst();
    void instructionsMayHave65535Bytes();
};

void TestFrameFormat::theHeaderTextGivesTheStartBytes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<bool>("isReadable");
    QTest::newRow("as it is at first") << "0x5A,0xA5" << 0x5A << 0xA5 << true;
    QTest::newRow("another") << "0x01,0xFF" << 0x01 << 0xFF << true;
    QTest::newRow("too short") << "0x5A" << 0xA5 << 0x5A << false;
    QTest::newRow("none") << "" << 0xA5 << 0x5A << false;
}

void TestFrameFormat::theHeaderTextGivesTheStartBytes()
{
    QFETCH(const QString, text);
    QFETCH(const bool, isReadable);
    FrameFormat format;
    format.setHeaderText(text);
    QTEST(int(format.startBytes().first), "first");
    QTEST(int(format.startBytes().second), "second");
    QTEST(int(format.nextFrameLayout().startBytes.first), "first");
    QCOMPARE(format.unreadableHeader(), isReadable ? std::nullopt : std::optional<QString>(text));
}

void TestFrameFormat::fieldsAreLeftOut()
{
    FrameFormat format;
    QVERIFY(format.nextFrameLayout().withStartBytes);
    QVERIFY(format.nextFrameLayout().withLength);
    format.setStartBytes(false);
    QVERIFY(!format.nextFrameLayout().withStartBytes);
    QVERIFY(format.nextFrameLayout().withLength);
    format.setLength(false);
    QVERIFY(!format.nextFrameLayout().withLength);
}

void TestFrameFormat::crcIsOffAtFirst()
{
    FrameFormat format;
    QVERIFY(!format.withCrc());
    format.setCrc(true);
    QVERIFY(format.withCrc());
    QVERIFY(format.nextFrameLayout().withCrc);
}

void TestFrameFormat::instructionsMayHave65535Bytes()
{
    QCOMPARE(FrameFormat().nextFrameLayout().maximumInstructionLength, 65535);
}

QTEST_GUILESS_MAIN(TestFrameFormat)

#include "tst_frameformat.moc"

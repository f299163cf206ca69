#include "frames/startbytes.h"

#include <QtTest>

Q_DECLARE_METATYPE(StartBytes)

class TestStartBytes : public QObject
{
    Q_OBJECT

private slots:
    void goodFields_data();
    void goodFields();
    void badFields_data();
    void badFields();
    void lengthCountsEncodedBytes();
    void fallback();
    void onTheWire_data();
    void onTheWire();
};

void TestStartBytes::goodFields_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("startBytes");

    QTest::newRow("default") << "0x5A,0xA5"
                             << "5A A5";
    QTest::newRow("lower case") << "0xab,0xcd"
                                << "AB CD";
    QTest::newRow("upper-case X") << "0X12,0X34"
                                  << "12 34";
    QTest::newRow("no separator") << "0x5A0xA5"
                                  << "5A A5";
    QTest::newRow("digits alone") << "11223344"
                                  << "22 44";
    QTest::newRow("prefixes are ignored") << "F15A;2EA5"
                                          << "5A A5";
    QTest::newRow("x as a prefix alone") << "xX5AXxA5"
                                         << "5A A5";
    QTest::newRow("other characters are skipped") << "0x12-0x34"
                                                  << "12 34";
    QTest::newRow("skipped inside a pair") << "0x1g20x34"
                                           << "12 34";
    QTest::newRow("skipped in front") << " 0x120x34"
                                      << "12 34";
    QTest::newRow("a ninth kept character is ignored") << "0x120x345"
                                                       << "12 34";
    QTest::newRow("x as the high digit counts as 0") << "0xx50xX6"
                                                     << "05 06";
    QTest::newRow("x as the low digit makes the byte 0") << "0x5x0xA5"
                                                         << "00 A5";
}

void TestStartBytes::goodFields()
{
    QFETCH(QString, field);
    QFETCH(QString, startBytes);
    const std::optional<StartBytes> parsed = parseStartBytes(field);
    QVERIFY(parsed.has_value());
    QCOMPARE(bytesOf(*parsed).toHex(' ').toUpper(), startBytes.toLatin1());
}

void TestStartBytes::badFields_data()
{
    QTest::addColumn<QString>("field");

    QTest::newRow("empty") << QString();
    QTest::newRow("ten characters") << "0x5A, 0xA5";
    QTest::newRow("eight kept of ten") << "0x5A,0xA5 ";
    QTest::newRow("four kept") << "5A,A5";
    QTest::newRow("seven kept") << "0x5A,0xA";
    QTest::newRow("seven kept of nine") << "0x5A,0x,5";
    QTest::newRow("a letter that is no hex digit") << "0x5A,0xAg";
    QTest::newRow("nine skipped characters") << ",,,,,,,,,";
}

void TestStartBytes::badFields()
{
    QFETCH(QString, field);
    QVERIFY(!parseStartBytes(field).has_value());
}

void TestStartBytes::lengthCountsEncodedBytes()
{
    const QString field = QStringLiteral(u"0x5A\u00E90xA5");
    QCOMPARE(field.size(), 9);
    QCOMPARE(field.toLocal8Bit().size(), 10);
    QVERIFY(!parseStartBytes(field).has_value());
}

void TestStartBytes::fallback()
{
    QCOMPARE(int(fallbackStartBytes.first), 0xA5);
    QCOMPARE(int(fallbackStartBytes.second), 0x5A);
}

void TestStartBytes::onTheWire_data()
{
    QTest::addColumn<StartBytes>("startBytes");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("default") << StartBytes{0x5A, 0xA5} << QByteArray("\x5A\xA5");
    QTest::newRow("a zero in front") << StartBytes{0x00, 0x0B} << QByteArray("\0\x0B", 2);
}

void TestStartBytes::onTheWire()
{
    QFETCH(StartBytes, startBytes);
    QFETCH(QByteArray, bytes);
    QCOMPARE(bytesOf(startBytes), bytes);
}

// The locale's encoding is set up by the application object.
QTEST_GUILESS_MAIN(TestStartBytes)
#include "tst_startbytes.moc"

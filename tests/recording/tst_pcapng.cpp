#include "frames/timeunits.h"
#include "recordingsamples.h"

#include <QtTest>

class TestPcapng : public QObject
{
    Q_OBJECT

private slots:
    void theFileBeginsAsTheFormatSays();
    void aPacketIsThatOfASerialLine();
    void whatIsWrittenIsRead();
    void theTailIsRead();
    void anyPrefixIsReadable();
    void whatCannotBeReadIsToldByItsPlace_data();
    void whatCannotBeReadIsToldByItsPlace();
    void packetsOfForeignWritersAreRead();
};

namespace {

QByteArray pcapngFile()
{
    return sampleFile(RecordingFormat::Pcapng, sampleEvents());
}

quint32 wordAt(const QByteArray &file, int position)
{
    return qFromLittleEndian<quint32>(file.constData() + position);
}

/// Where the blocks begin.
QVector<int> blocksOf(const QByteArray &file)
{
    QVector<int> begins;
    for (int position = 0; position < file.size(); position += int(wordAt(file, position + 4))) {
        begins.append(position);
    }
    return begins;
}

} // namespace

void TestPcapng::theFileBeginsAsTheFormatSays()
{
    const QByteArray file = pcapngFile();
    QCOMPARE(file.left(4).toHex(), QByteArray("0a0d0d0a"));
    QCOMPARE(wordAt(file, 8), 0x1A2B3C4DU);
    QCOMPARE(file.mid(12, 4).toHex(), QByteArray("01000000"));
    const int interface = int(wordAt(file, 4));
    QCOMPARE(wordAt(file, interface - 4), quint32(interface));
    QCOMPARE(wordAt(file, interface), 1U);
    QCOMPARE(file.mid(interface + 8, 2).toHex(), QByteArray("fa00"));
    QCOMPARE(file.size() % 4, 0);
}

void TestPcapng::aPacketIsThatOfASerialLine()
{
    const QByteArray file = pcapngFile();
    const int packet = blocksOf(file).at(3);
    QCOMPARE(wordAt(file, packet), 6U);
    const quint64 us = (quint64(wordAt(file, packet + 12)) << 32U) + wordAt(file, packet + 16);
    QCOMPARE(us, quint64(sampleUtcUs + 10));
    QCOMPARE(wordAt(file, packet + 20), 12U + 11U);
    QCOMPARE(wordAt(file, packet + 24), 12U + 11U);
    const QByteArray content = file.mid(packet + 28, 12 + 11);
    QCOMPARE(qFromBigEndian<quint32>(content.constData()), quint32(sampleUtcUs / usPerSecond));
    QCOMPARE(qFromBigEndian<quint32>(content.constData() + 4), 123466U);
    QCOMPARE(content.mid(8).toHex(), QByteArray("01000000") + sampleEvents().at(1).bytes.toHex());
}

void TestPcapng::whatIsWrittenIsRead()
{
    const ReadFile read = readBytes(pcapngFile());
    QCOMPARE(read.error, QString());
    QVERIFY(areSame(read.events, sampleEvents()));
    QCOMPARE(read.head.startBytes, sampleHead().startBytes);
    QCOMPARE(read.head.zone, sampleHead().zone);
    QVERIFY(!read.isTorn);
}

void TestPcapng::theTailIsRead()
{
    const ReadFile read = readBytes(pcapngFile());
    QVERIFY(read.hasTail);
    QCOMPARE(read.tail.file.received.bytes, qint64(10));
    QCOMPARE(
        read.tail.recording.sent.sha256,
        QCryptographicHash::hash(sampleEvents().at(1).bytes, QCryptographicHash::Sha256).toHex());
    QVERIFY(!readBytes(sampleFileWithoutTail(RecordingFormat::Pcapng, sampleEvents())).hasTail);
}

void TestPcapng::anyPrefixIsReadable()
{
    const QByteArray file = pcapngFile();
    const QVector<int> begins = blocksOf(file);
    for (int size = 4; size < file.size(); ++size) {
        const ReadFile read = readBytes(file.left(size));
        QCOMPARE(read.error, QString());
        QVERIFY(!read.hasTail);
        QCOMPARE(read.isTorn, !begins.contains(size));
        const auto whole = std::count_if(begins.begin(), begins.end(),
                                         [size](int begin) { return begin > 0 && begin <= size; });
        QVERIFY(areSame(read.events, sampleEvents().mid(0, std::max(0, int(whole) - 2))));
    }
}

void TestPcapng::whatCannotBeReadIsToldByItsPlace_data()
{
    QTest::addColumn<int>("block");
    QTest::addColumn<int>("place");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("words");

    const auto row = [](const char *name, int block, int place, const char *digits,
                        const char *words) {
        QTest::newRow(name) << block << place << QByteArray::fromHex(digits) << words;
    };
    row("big-endian", 0, 8, "1A2B3C4D", "a section that isn't ours");
    row("size of zero", 2, 4, "00000000", "a block of an impossible size");
    row("odd size", 2, 4, "0D000000", "a block of an impossible size");
    row("huge size", 2, 4, "FCFFFFFF", "a block of an impossible size");
    row("another size behind it", 2, -4, "FCFF0000", "a block with two sizes");
    row("another link type", 1, 8, "0100", "no serial line");
    row("second section", 2, 0, "0A0D0D0A", "a section that isn't ours");
    row("second interface", 2, 0, "01000000", "no serial line");
    row("packet beyond its block", 3, 20, "00FF0000", "a packet that isn't ours");
    row("packet without a head", 3, 20, "0B000000", "a packet that isn't ours");
    row("time", 3, 12, "FFFFFFFF", "an impossible time");
}

void TestPcapng::whatCannotBeReadIsToldByItsPlace()
{
    QFETCH(int, block);
    QFETCH(int, place);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, words);
    QByteArray file = pcapngFile();
    const int begin = blocksOf(file).at(block);
    const int from = place >= 0 ? begin + place : begin + int(wordAt(file, begin + 4)) + place;
    file.replace(from, bytes.size(), bytes);
    const ReadFile read = readBytes(file);
    QCOMPARE(read.error, QString("byte %1: %2").arg(begin).arg(words));
    QCOMPARE(read.events.size(), std::max(0, block - 2));
}

void TestPcapng::packetsOfForeignWritersAreRead()
{
    QByteArray file = sampleFileWithoutTail(RecordingFormat::Pcapng, {});
    // A sent packet of one byte without options.
    file += QByteArray::fromHex("06000000 30000000 00000000 00000000 40420F00 0D000000 0D000000"
                                "00000000 00000000 01000000 42000000 30000000");
    const ReadFile read = readBytes(file);
    QCOMPARE(read.error, QString());
    QCOMPARE(read.events.size(), 1);
    QCOMPARE(read.events.at(0).kind, RecordEvent::Kind::Sent);
    QCOMPARE(read.events.at(0).bytes, QByteArray("B"));
    QCOMPARE(read.events.at(0).time.utcUs, qint64(1000000));
}

QTEST_APPLESS_MAIN(TestPcapng)
#include "tst_pcapng.moc"

#include "hexbytes.h"
#include "log/framereassembler.h"

#include <QtTest>

#include <random>

class TestFrameReassembler : public QObject
{
    Q_OBJECT

private slots:
    void chunks_data();
    void chunks();
    void startByteAtTheEnd_data();
    void startByteAtTheEnd();
    void everyPlaceOfACut_data();
    void everyPlaceOfACut();
    void aStreamInRandomChunksLosesNothing();
    void aLoneStartByteCanBeGivenUp();
    void overflowGivesOutWhatWaits();
    void aChunkBeyondTheCapacityIsCut();
    void aChangedHeaderMakesWaitingBytesANotice();
};

namespace {

using Chunks = QStringList;

constexpr StartBytes usualStart{0x5A, 0xA5};

/// "F 5AA5…" for a frame, "N …" for stray bytes.
QString described(const ReceivedPiece &piece)
{
    const QString kind = piece.kind == ReceivedPiece::Kind::Frame ? "F " : "N ";
    return kind + QString::fromLatin1(piece.bytes.toHex().toUpper());
}

void addColumns()
{
    QTest::addColumn<QStringList>("chunks");
    QTest::addColumn<QStringList>("pieces");
    QTest::addColumn<int>("waiting");
}

} // namespace

void TestFrameReassembler::chunks_data()
{
    addColumns();

    QTest::newRow("one frame") << Chunks{"5AA5020102"} << QStringList{"F 5AA5020102"} << 0;
    QTest::newRow("empty frame") << Chunks{"5AA500"} << QStringList{"F 5AA500"} << 0;
    QTest::newRow("first piece ends before the length")
        << Chunks{"5AA5", "020102"} << QStringList{"F 5AA5020102"} << 0;
    QTest::newRow("two frames back to back")
        << Chunks{"5AA501015AA50102"} << QStringList{"F 5AA50101", "F 5AA50102"} << 0;
    QTest::newRow("a frame and the start of the next")
        << Chunks{"5AA501015AA502", "0708"} << QStringList{"F 5AA50101", "F 5AA5020708"} << 0;
    QTest::newRow("rubbish before")
        << Chunks{"01025AA50103"} << QStringList{"N 0102", "F 5AA50103"} << 0;
    QTest::newRow("rubbish between")
        << Chunks{"5AA5010109085AA50102"} << QStringList{"F 5AA50101", "N 0908", "F 5AA50102"} << 0;
    QTest::newRow("rubbish after")
        << Chunks{"5AA501010908"} << QStringList{"F 5AA50101", "N 0908"} << 0;
    QTest::newRow("rubbish only") << Chunks{"0102", "03"} << QStringList{"N 0102", "N 03"} << 0;
    QTest::newRow("rubbish, then the beginning of a frame")
        << Chunks{"01025AA5", "0107"} << QStringList{"N 0102", "F 5AA50107"} << 0;
    QTest::newRow("a frame that holds the start bytes")
        << Chunks{"5AA504015AA502"} << QStringList{"F 5AA504015AA502"} << 0;
    QTest::newRow("a length never fulfilled") << Chunks{"5AA50A0102"} << QStringList{} << 5;
    QTest::newRow("a length fulfilled by what comes later")
        << Chunks{"5AA5050102", "5AA50101"} << QStringList{"F 5AA50501025AA501", "N 01"} << 0;
}

void TestFrameReassembler::startByteAtTheEnd_data()
{
    addColumns();
    QTest::newRow("behind a frame it waits")
        << Chunks{"5AA501015A", "A50102"} << QStringList{"F 5AA50101", "F 5AA50102"} << 0;
    QTest::newRow("behind a frame and rubbish too")
        << Chunks{"5AA50101095A", "A50102"} << QStringList{"F 5AA50101", "N 09", "F 5AA50102"} << 0;
    QTest::newRow("behind rubbish and a frame too")
        << Chunks{"095AA501015A", "A50102"} << QStringList{"N 09", "F 5AA50101", "F 5AA50102"} << 0;
    QTest::newRow("a kept start byte that was none")
        << Chunks{"5AA501015A", "0102"} << QStringList{"F 5AA50101", "N 5A0102"} << 0;
    QTest::newRow("a kept start byte in front of another")
        << Chunks{"5AA501015A", "5AA50102"} << QStringList{"F 5AA50101", "N 5A", "F 5AA50102"} << 0;
    QTest::newRow("a first start byte in a chunk of its own behind a frame")
        << Chunks{"5AA50101", "5A", "A50102"} << QStringList{"F 5AA50101", "F 5AA50102"} << 0;
    QTest::newRow("behind rubbish in chunks of its own")
        << Chunks{"09", "085A", "A50102"} << QStringList{"N 09", "N 08", "F 5AA50102"} << 0;
    QTest::newRow("as the first of all bytes")
        << Chunks{"5A", "A50102"} << QStringList{"F 5AA50102"} << 0;
    QTest::newRow("behind rubbish only")
        << Chunks{"095A", "A50102"} << QStringList{"N 09", "F 5AA50102"} << 0;
    QTest::newRow("several of them") << Chunks{"5A5A", "5A"} << QStringList{"N 5A", "N 5A"} << 1;
}

void TestFrameReassembler::chunks()
{
    QFETCH(QStringList, chunks);
    QFETCH(QStringList, pieces);
    QFETCH(int, waiting);
    FrameReassembler reassembler;
    QStringList given;
    for (const QString &chunk : chunks) {
        for (const ReceivedPiece &piece : reassembler.take(hex(chunk), usualStart)) {
            given.append(described(piece));
        }
    }
    QCOMPARE(given, pieces);
    QCOMPARE(reassembler.waitingBytes(), waiting);
}

void TestFrameReassembler::startByteAtTheEnd()
{
    chunks();
}

void TestFrameReassembler::everyPlaceOfACut_data()
{
    QTest::addColumn<int>("cut");
    for (int cut = 1; cut < 7; ++cut) {
        QTest::addRow("behind byte %d", cut) << cut;
    }
}

void TestFrameReassembler::everyPlaceOfACut()
{
    QFETCH(int, cut);
    const QByteArray frame = hex("5AA50401020304");
    FrameReassembler reassembler;
    QVERIFY(reassembler.take(frame.left(cut), usualStart).isEmpty());
    const QVector<ReceivedPiece> pieces = reassembler.take(frame.mid(cut), usualStart);
    QCOMPARE(pieces.size(), 1);
    QCOMPARE(pieces.first().bytes, frame);
}

void TestFrameReassembler::aStreamInRandomChunksLosesNothing()
{
    std::mt19937 random(7);
    QVector<QByteArray> frames;
    QByteArray stream;
    for (int i = 0; i < 2000; ++i) {
        QByteArray frame = hex("5AA5");
        const int length = int(random() % 40);
        frame.append(char(length));
        for (int k = 0; k < length; ++k) {
            frame.append(char(random()));
        }
        frames.append(frame);
        stream.append(frame);
    }
    FrameReassembler reassembler;
    QVector<QByteArray> given;
    int size = 1;
    for (int position = 0; position < stream.size();
         position += size, size = 1 + int(random() % 50)) {
        for (const ReceivedPiece &piece :
             reassembler.take(stream.mid(position, size), usualStart)) {
            if (piece.kind == ReceivedPiece::Kind::Frame) {
                given.append(piece.bytes);
            }
        }
    }
    QCOMPARE(given, frames);
    QCOMPARE(reassembler.waitingBytes(), 0);
}

void TestFrameReassembler::aLoneStartByteCanBeGivenUp()
{
    FrameReassembler reassembler;
    QVERIFY(!reassembler.holdsLoneStartByte());
    QVERIFY(reassembler.giveUpLoneStartByte().isEmpty());
    reassembler.take(hex("075A"), usualStart);
    QVERIFY(reassembler.holdsLoneStartByte());
    const QVector<ReceivedPiece> pieces = reassembler.giveUpLoneStartByte();
    QCOMPARE(pieces.size(), 1);
    QCOMPARE(described(pieces.first()), QString("N 5A"));
    QCOMPARE(reassembler.waitingBytes(), 0);
    reassembler.take(hex("5AA5"), usualStart);
    QVERIFY(!reassembler.holdsLoneStartByte());
    QVERIFY(reassembler.giveUpLoneStartByte().isEmpty());
    QCOMPARE(reassembler.waitingBytes(), 2);
}

void TestFrameReassembler::overflowGivesOutWhatWaits()
{
    FrameReassembler reassembler;
    reassembler.take(hex("5AA50A0102"), usualStart);
    const QByteArray rubbish(FrameReassembler::capacity - 4, '\x11');
    const QVector<ReceivedPiece> pieces = reassembler.take(rubbish, usualStart);
    QCOMPARE(pieces.size(), 2);
    QCOMPARE(described(pieces.at(0)), QString("F 5AA50A0102"));
    QCOMPARE(pieces.at(1).kind, ReceivedPiece::Kind::Stray);
    QCOMPARE(pieces.at(1).bytes, rubbish);
}

void TestFrameReassembler::aChunkBeyondTheCapacityIsCut()
{
    FrameReassembler reassembler;
    const QByteArray rubbish(FrameReassembler::capacity + 10, '\x11');
    const QVector<ReceivedPiece> pieces = reassembler.take(rubbish, usualStart);
    QCOMPARE(pieces.size(), 1);
    QCOMPARE(pieces.first().bytes.size(), FrameReassembler::capacity);
}

void TestFrameReassembler::aChangedHeaderMakesWaitingBytesANotice()
{
    FrameReassembler reassembler;
    reassembler.take(hex("5AA50401"), usualStart);
    const QVector<ReceivedPiece> pieces = reassembler.take(hex("1234010F"), {0x12, 0x34});
    QCOMPARE(pieces.size(), 2);
    QCOMPARE(described(pieces.at(0)), QString("N 5AA50401"));
    QCOMPARE(described(pieces.at(1)), QString("F 1234010F"));
}

QTEST_APPLESS_MAIN(TestFrameReassembler)
#include "tst_framereassembler.moc"

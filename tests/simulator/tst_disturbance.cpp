#include "simulator/disturbance.h"

#include <QtTest>

class TestDisturbance : public QObject
{
    Q_OBJECT

private slots:
    void leavesFramesAloneByDefault();
    void garbageComesBeforeEachNthFrame_data();
    void garbageComesBeforeEachNthFrame();
    void garbageHasAllBytesButTheFirstStartByte();
    void piecesMakeUpTheBlock_data();
    void piecesMakeUpTheBlock();
    void pausesAreShort();
    void sameSeedSameChoices();
};

namespace {

const QByteArray disturbedFrame = QByteArray::fromHex("5AA503420102");

DeviceOptions garbageOptions(int every, quint32 seed = 1)
{
    DeviceOptions options;
    options.garbageEvery = every;
    options.seed = seed;
    return options;
}

} // namespace

void TestDisturbance::leavesFramesAloneByDefault()
{
    Disturbance disturbance{DeviceOptions()};
    for (int i = 0; i < 100; ++i) {
        QCOMPARE(disturbance.withGarbage(disturbedFrame), disturbedFrame);
    }
}

void TestDisturbance::garbageComesBeforeEachNthFrame_data()
{
    QTest::addColumn<int>("every");
    QTest::newRow("each") << 1;
    QTest::newRow("each third") << 3;
}

void TestDisturbance::garbageComesBeforeEachNthFrame()
{
    QFETCH(int, every);
    Disturbance disturbance(garbageOptions(every));
    for (int i = 1; i <= 300; ++i) {
        const QByteArray block = disturbance.withGarbage(disturbedFrame);
        QVERIFY(block.endsWith(disturbedFrame));
        QCOMPARE(block.size() > disturbedFrame.size(), i % every == 0);
        QVERIFY(block.size() <= disturbedFrame.size() + 16);
    }
}

void TestDisturbance::garbageHasAllBytesButTheFirstStartByte()
{
    Disturbance disturbance(garbageOptions(1));
    QSet<char> seen;
    for (int i = 0; i < 2000; ++i) {
        QByteArray block = disturbance.withGarbage(disturbedFrame);
        block.chop(disturbedFrame.size());
        for (const char byte : block) {
            seen.insert(byte);
        }
    }
    QVERIFY(!seen.contains('\x5A'));
    QCOMPARE(seen.size(), 255);
}

void TestDisturbance::piecesMakeUpTheBlock_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("one byte") << 1;
    QTest::newRow("two bytes") << 2;
    QTest::newRow("longest") << 274;
}

void TestDisturbance::piecesMakeUpTheBlock()
{
    QFETCH(int, size);
    QByteArray block(size, '\0');
    for (int i = 0; i < size; ++i) {
        block[i] = static_cast<char>(i & 0xFF);
    }
    Disturbance disturbance{DeviceOptions()};
    for (int i = 0; i < 200; ++i) {
        const QVector<QByteArray> pieces = disturbance.pieces(block);
        QVERIFY(pieces.size() >= qMin(2, size));
        QByteArray joined;
        for (const QByteArray &piece : pieces) {
            QVERIFY(!piece.isEmpty());
            joined += piece;
        }
        QCOMPARE(joined, block);
    }
}

void TestDisturbance::pausesAreShort()
{
    Disturbance disturbance{DeviceOptions()};
    for (int i = 0; i < 200; ++i) {
        const int pause = disturbance.pauseMs();
        QVERIFY(pause >= 1 && pause <= 5);
    }
}

void TestDisturbance::sameSeedSameChoices()
{
    const auto choices = [](quint32 seed) {
        Disturbance disturbance(garbageOptions(1, seed));
        QByteArray all;
        for (int i = 0; i < 20; ++i) {
            all += disturbance.withGarbage(disturbedFrame);
        }
        return all;
    };
    QCOMPARE(choices(5), choices(5));
    QVERIFY(choices(5) != choices(6));
}

QTEST_APPLESS_MAIN(TestDisturbance)
#include "tst_disturbance.moc"

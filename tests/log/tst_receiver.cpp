#include "frames/hextext.h"
#include "frames/timeunits.h"
#include "hexbytes.h"
#include "log/receiver.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QtTest>

class TestReceiver : public QObject
{
    Q_OBJECT

private slots:
    void piecesAreGivenOutInOrder();
    void theStartBytesAreReadForEachChunk();
    void aLoneStartByteIsShownAfterASilence_data();
    void aLoneStartByteIsShownAfterASilence();
    void aStartByteThatIsFollowedIsNotShown();
    void whatHeldBackBytesMayBringThemBeforeItIsShown();
    void aStartByteThatIsBroughtLastHasASilenceOfItsOwn();
    void whatIsMoreThanAStartByteIsKept();
    void piecesHaveTheTimeOfTheirLastChunk();
    void aFrameTellsWhenItBegan();
    void silenceEndsAFrameThatNothingElseEnds();
    void aGapThatTheTimerHasMissedCounts();
};

namespace {

/// A receiver for the default header, and what it gives out: "F …" for a frame, "N …" for stray
/// bytes.
class Heard : public QObject
{
public:
    Heard()
        : receiver([this] { return startBytes; })
    {
        connect(&receiver, &Receiver::frameReceived, this,
                [this](const QByteArray &frame) { pieces.append("F " + formatHexBytes(frame)); });
        connect(&receiver, &Receiver::strayReceived, this,
                [this](const QByteArray &bytes) { pieces.append("N " + formatHexBytes(bytes)); });
    }

    StartBytes startBytes{0x5A, 0xA5};
    Receiver receiver;
    QStringList pieces;
};

constexpr int silenceMs = 50;

} // namespace

void TestReceiver::piecesAreGivenOutInOrder()
{
    Heard heard;
    heard.receiver.take(hex("07 5AA50101 08 5AA5"));
    heard.receiver.take({});
    heard.receiver.take(hex("0102"));
    QCOMPARE(heard.pieces, QStringList({"N 07 ", "F 5A A5 01 01 ", "N 08 ", "F 5A A5 01 02 "}));
}

void TestReceiver::theStartBytesAreReadForEachChunk()
{
    Heard heard;
    heard.receiver.take(hex("5AA50101"));
    heard.startBytes = {0x12, 0x34};
    heard.receiver.take(hex("5AA50101"));
    heard.receiver.take(hex("12340101"));
    QCOMPARE(heard.pieces, QStringList({"F 5A A5 01 01 ", "N 5A A5 01 01 ", "F 12 34 01 01 "}));
}

void TestReceiver::aLoneStartByteIsShownAfterASilence_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("pieces");

    QTest::newRow("alone") << hex("5A") << QStringList{"N 5A "};
    QTest::newRow("behind rubbish") << hex("075A") << QStringList{"N 07 ", "N 5A "};
    QTest::newRow("behind a frame") << hex("5AA501015A") << QStringList{"F 5A A5 01 01 ", "N 5A "};
}

void TestReceiver::aLoneStartByteIsShownAfterASilence()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, pieces);
    Heard heard;
    QElapsedTimer silence;
    silence.start();
    heard.receiver.take(bytes);
    QCOMPARE(heard.pieces, pieces.mid(0, pieces.size() - 1));
    QTRY_COMPARE(heard.pieces, pieces);
    QVERIFY(silence.elapsed() >= silenceMs);
    // It is gone for good.
    heard.receiver.take(hex("A50102"));
    QCOMPARE(heard.pieces.mid(pieces.size()), QStringList{"N A5 01 02 "});
}

void TestReceiver::aStartByteThatIsFollowedIsNotShown()
{
    Heard heard;
    heard.receiver.take(hex("5A"));
    heard.receiver.take(hex("A5"));
    bool silent = false;
    QTimer::singleShot(2 * silenceMs, Qt::PreciseTimer, &heard, [&silent] { silent = true; });
    QTRY_VERIFY(silent);
    heard.receiver.take(hex("0107"));
    QCOMPARE(heard.pieces, QStringList{"F 5A A5 01 07 "});
}

void TestReceiver::whatHeldBackBytesMayBringThemBeforeItIsShown()
{
    Heard heard;
    const QSignalSpy asked(&heard.receiver, &Receiver::aboutToGiveUp);
    connect(&heard.receiver, &Receiver::aboutToGiveUp, this,
            [&heard] { heard.receiver.take(hex("A50103")); });
    heard.receiver.take(hex("075A"));
    QTRY_COMPARE(asked.count(), 1);
    QCOMPARE(heard.pieces, QStringList({"N 07 ", "F 5A A5 01 03 "}));
}

void TestReceiver::aStartByteThatIsBroughtLastHasASilenceOfItsOwn()
{
    Heard heard;
    QElapsedTimer silence;
    connect(&heard.receiver, &Receiver::aboutToGiveUp, this, [&] {
        if (!silence.isValid()) {
            silence.start();
            heard.receiver.take(hex("A50103 5A"));
        }
    });
    heard.receiver.take(hex("5A"));
    QTRY_COMPARE(heard.pieces, QStringList({"F 5A A5 01 03 ", "N 5A "}));
    QVERIFY(silence.elapsed() >= silenceMs);
}

void TestReceiver::whatIsMoreThanAStartByteIsKept()
{
    Heard heard;
    heard.receiver.take(hex("5AA502"));
    bool silent = false;
    QTimer::singleShot(2 * silenceMs, Qt::PreciseTimer, &heard, [&silent] { silent = true; });
    QTRY_VERIFY(silent);
    QCOMPARE(heard.pieces, QStringList());
}

void TestReceiver::piecesHaveTheTimeOfTheirLastChunk()
{
    Receiver receiver([] { return StartBytes{0x5A, 0xA5}; });
    QStringList pieces;
    const auto note = [&pieces](const QByteArray &bytes, ArrivalTime time) {
        pieces.append(QStringLiteral("%1@%2/%3")
                          .arg(QString::fromLatin1(bytes.toHex()))
                          .arg(time.utcUs)
                          .arg(time.monotonicNs));
    };
    connect(&receiver, &Receiver::frameReceived, this, note);
    connect(&receiver, &Receiver::strayReceived, this, note);
    receiver.take(hex("07 5AA501"), {1000, 10});
    receiver.take(hex("01 5A"), {2000, 20});
    QTRY_COMPARE(pieces, QStringList({"07@1000/10", "5aa50101@2000/20", "5a@2000/20"}));
}

void TestReceiver::aFrameTellsWhenItBegan()
{
    Receiver receiver([] { return StartBytes{0x5A, 0xA5}; });
    QStringList frames;
    connect(&receiver, &Receiver::frameReceived, this,
            [&frames](const QByteArray & /*frame*/, ArrivalTime time, ArrivalTime begun) {
                frames.append(QStringLiteral("%1-%2 %3-%4")
                                  .arg(begun.utcUs)
                                  .arg(time.utcUs)
                                  .arg(begun.monotonicNs)
                                  .arg(time.monotonicNs));
            });
    receiver.take(hex("5AA50101 5A"), {1000, 10});
    receiver.take(hex("A5"), {2000, 20});
    receiver.take(hex("0102 5AA50103 5AA5"), {3000, 30});
    // What waits turns out to be no beginning of a frame.
    receiver.take(hex("0104 5A"), {4000, 40});
    receiver.take(hex("07 5AA50105"), {5000, 50});
    QCOMPARE(frames, QStringList({"1000-1000 10-10", "1000-3000 10-30", "3000-3000 30-30",
                                  "3000-4000 30-40", "5000-5000 50-50"}));
}

void TestReceiver::silenceEndsAFrameThatNothingElseEnds()
{
    Heard heard;
    heard.receiver.setGap(5);
    heard.receiver.take(hex("01 03"));
    heard.receiver.take(hex("5A A5 01"));
    QCOMPARE(heard.pieces, QStringList());
    QTRY_COMPARE(heard.pieces, QStringList{"F 01 03 5A A5 01 "});
    heard.receiver.take(hex("02"));
    heard.receiver.setGap(std::nullopt);
    heard.receiver.take(hex("5AA50101"));
    QCOMPARE(heard.pieces.mid(1), QStringList({"F 02 ", "F 5A A5 01 01 "}));
}

void TestReceiver::aGapThatTheTimerHasMissedCounts()
{
    Heard heard;
    heard.receiver.setGap(5);
    heard.receiver.take(hex("01"), {0, 100 * nsPerMs});
    heard.receiver.take(hex("02"), {0, 104 * nsPerMs});
    heard.receiver.take(hex("03"), {0, 109 * nsPerMs});
    QCOMPARE(heard.pieces, QStringList{"F 01 02 "});
}

QTEST_GUILESS_MAIN(TestReceiver)
#include "tst_receiver.moc"

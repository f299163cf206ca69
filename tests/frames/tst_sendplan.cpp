#include "frames/delaymarker.h"
#include "frames/hextext.h"
#include "frames/sendplan.h"

#include <QtTest>

class TestSendPlan : public QObject
{
    Q_OBJECT

private slots:
    void delayRows_data();
    void delayRows();
    void batchLeavesDelayRowsOut();
    void batchSkipsEmptyFrames();
    void batchLimit_data();
    void batchLimit();
    void batchWithOverlongRows();
    void loopWithPauses();
    void loopOfPausesOnly();
    void loopPauseBehindEmptyFrames();
    void loopLeavesOverlongRowsOut();
    void loopOfNothing();
    void stepsOfALoop_data();
    void stepsOfALoop();
    void queueLimits_data();
    void queueLimits();
    void rowsBehindTheLimitAreNotBuilt();
    void instructionLengths();
    void messages();
    void pieces_data();
    void pieces();
};

namespace {

/// The text itself in angle brackets; nothing for a text that begins with a question mark.
QByteArray fakeFrame(const QString &text)
{
    if (text.startsWith(QLatin1Char('?'))) {
        return {};
    }
    return '<' + text.toLatin1() + '>';
}

/// Rows with these texts, numbered from 1.
QVector<CheckedRow> rowsOf(const QStringList &texts)
{
    QVector<CheckedRow> rows;
    for (const QString &text : texts) {
        rows.append({rows.size() + 1, text});
    }
    return rows;
}

/// The queue as text: blocks as they are, pauses as their number.
QString described(const QVector<QueueEntry> &queue)
{
    QStringList entries;
    for (const QueueEntry &entry : queue) {
        entries.append(entry.isPause() ? QString::number(entry.pauseMs)
                                       : QString::fromLatin1(entry.block));
    }
    return entries.join(QLatin1Char(' '));
}

QString digits(int count)
{
    return QStringLiteral("1").repeated(count);
}

} // namespace

void TestSendPlan::delayRows_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isDelay");
    QTest::addColumn<int>("milliseconds");

    QTest::newRow("marker and number") << "++500" << true << 500;
    QTest::newRow("leading zeros are decimal") << "++0010" << true << 10;
    QTest::newRow("marker alone") << "++" << true << 0;
    QTest::newRow("hex digits are no number") << "++1F" << true << 0;
    QTest::newRow("no number") << "++abc" << true << 0;
    QTest::newRow("negative") << "++-5" << true << 0;
    QTest::newRow("too large") << "++99999999999" << true << 0;
    QTest::newRow("third sign") << "+++7" << true << 7;
    QTest::newRow("one sign") << "+500" << false << 0;
    QTest::newRow("marker further on") << "01++500" << false << 0;
    QTest::newRow("empty") << QString() << false << 0;
}

void TestSendPlan::delayRows()
{
    QFETCH(QString, text);
    QFETCH(bool, isDelay);
    QCOMPARE(::isDelay(text), isDelay);
    if (isDelay) {
        QTEST(delayMilliseconds(text), "milliseconds");
    }
}

void TestSendPlan::batchLeavesDelayRowsOut()
{
    const BatchPlan plan = planBatch(rowsOf({"01", "++500", "02"}), false, fakeFrame);
    QCOMPARE(plan.block, QByteArray("<01><02>"));
    QVERIFY(plan.overlongRows.isEmpty());
}

void TestSendPlan::batchSkipsEmptyFrames()
{
    QCOMPARE(planBatch(rowsOf({"?", "02", "?"}), false, fakeFrame).block, QByteArray("<02>"));
    QVERIFY(planBatch(rowsOf({"?", "++1"}), false, fakeFrame).block.isEmpty());
    QVERIFY(planBatch({}, false, fakeFrame).block.isEmpty());
}

void TestSendPlan::batchLimit_data()
{
    QTest::addColumn<int>("characters");
    QTest::addColumn<bool>("withCrc");
    QTest::addColumn<bool>("overlong");

    QTest::newRow("just fits") << 2 * 65532 << false << false;
    QTest::newRow("half a byte more") << 2 * 65532 + 1 << false << false;
    QTest::newRow("one byte more") << 2 * 65533 << false << true;
    QTest::newRow("just fits with CRC") << 2 * 65530 << true << false;
    QTest::newRow("half a byte more with CRC") << 2 * 65530 + 1 << true << false;
    QTest::newRow("one byte more with CRC") << 2 * 65531 << true << true;
}

void TestSendPlan::batchLimit()
{
    QFETCH(int, characters);
    QFETCH(bool, withCrc);
    QFETCH(bool, overlong);
    const QVector<CheckedRow> rows{{7, digits(characters)}};
    const QVector<int> expected = overlong ? QVector<int>{7} : QVector<int>{};

    const BatchPlan batch = planBatch(rows, withCrc, fakeFrame);
    QCOMPARE(batch.overlongRows, expected);
    QCOMPARE(batch.block.isEmpty(), overlong);

    const LoopPlan loop = planLoop(rows, withCrc, fakeFrame);
    QCOMPARE(loop.overlongRows, expected);
    QCOMPARE(loop.texts.isEmpty(), overlong);
    QCOMPARE(loop.queue.isEmpty(), overlong);
}

void TestSendPlan::batchWithOverlongRows()
{
    const QString tooLong = digits(140000);
    const QVector<CheckedRow> rows{{2, tooLong}, {3, "01"}, {5, tooLong}, {9, "02"}};
    const BatchPlan plan = planBatch(rows, false, fakeFrame);
    QCOMPARE(plan.overlongRows, (QVector<int>{2, 5}));
    QCOMPARE(plan.block, QByteArray("<01><02>"));
}

void TestSendPlan::loopWithPauses()
{
    const QStringList texts{"01", "02", "++500", "03", "++", "++7"};
    const LoopPlan plan = planLoop(rowsOf(texts), false, fakeFrame);
    QCOMPARE(plan.texts, texts);
    QCOMPARE(described(plan.queue), QString("<01><02> 500 <03> 0 7"));
    QVERIFY(!plan.tooManyEntries);
    QVERIFY(plan.overlongRows.isEmpty());
}

void TestSendPlan::loopOfPausesOnly()
{
    const LoopPlan plan = planLoop(rowsOf({"++5", "++6"}), false, fakeFrame);
    QCOMPARE(plan.texts, (QStringList{"++5", "++6"}));
    QCOMPARE(described(plan.queue), QString("5 6"));
}

void TestSendPlan::loopPauseBehindEmptyFrames()
{
    const LoopPlan plan = planLoop(rowsOf({"?", "++5", "?"}), false, fakeFrame);
    QCOMPARE(plan.texts, (QStringList{"?", "++5", "?"}));
    QCOMPARE(described(plan.queue), QString("5"));
}

void TestSendPlan::loopLeavesOverlongRowsOut()
{
    const QVector<CheckedRow> rows{{4, "01"}, {6, digits(140000)}, {8, "02"}};
    const LoopPlan plan = planLoop(rows, true, fakeFrame);
    QCOMPARE(plan.overlongRows, QVector<int>{6});
    QCOMPARE(plan.texts, (QStringList{"01", "02"}));
    QCOMPARE(described(plan.queue), QString("<01><02>"));
}

void TestSendPlan::loopOfNothing()
{
    const LoopPlan plan = planLoop({}, false, fakeFrame);
    QVERIFY(plan.texts.isEmpty());
    QVERIFY(plan.queue.isEmpty());
    QVERIFY(!plan.tooManyEntries);
}

void TestSendPlan::stepsOfALoop_data()
{
    QTest::addColumn<int>("intervalMs");
    QTest::addColumn<QString>("steps");

    QTest::newRow("fast mode") << 0 << "block <01><02>, 0; pause 500; block <03>, 0; pause 0";
    QTest::newRow("interval mode")
        << 20 << "text 01, 20; text 02, 20; pause 500; text 03, 20; pause 0";
}

void TestSendPlan::stepsOfALoop()
{
    QFETCH(int, intervalMs);
    QFETCH(QString, steps);
    const LoopPlan plan = planLoop(rowsOf({"01", "02", "++500", "03", "++"}), false, fakeFrame);
    QStringList result;
    for (const LoopStep &step : loopSteps(plan, intervalMs)) {
        const QString wait = QString::number(step.waitMs);
        if (step.kind == LoopStep::Kind::Text) {
            result.append("text " + step.text + ", " + wait);
        } else if (step.kind == LoopStep::Kind::Block) {
            result.append("block " + step.block + ", " + wait);
        } else {
            result.append("pause " + wait);
        }
        QCOMPARE(step.sends(), step.kind != LoopStep::Kind::Pause);
    }
    QCOMPARE(result.join("; "), steps);
}

void TestSendPlan::queueLimits_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<bool>("tooMany");

    const auto pauses = [](int count) {
        QStringList texts;
        for (int i = 0; i < count; ++i) {
            texts.append(QStringLiteral("++1"));
        }
        return texts;
    };
    QTest::newRow("127 pauses") << pauses(127) << false;
    QTest::newRow("128 pauses") << pauses(128) << true;
    QTest::newRow("126 pauses and a block") << pauses(126) + QStringList{"01"} << false;
    QTest::newRow("the last block is the 128th") << pauses(127) + QStringList{"01"} << true;
    QTest::newRow("a block in front of the 127th pause")
        << pauses(126) + QStringList{"01", "++1"} << true;
    QTest::newRow("a pause passes the limit") << pauses(127) + QStringList{"01", "++1"} << true;
    QStringList many;
    for (int i = 0; i < 500; ++i) {
        many.append(QStringLiteral("01"));
    }
    QTest::newRow("500 frames are one block") << many << false;
}

void TestSendPlan::queueLimits()
{
    QFETCH(QStringList, texts);
    QFETCH(bool, tooMany);
    const LoopPlan plan = planLoop(rowsOf(texts), false, fakeFrame);
    QCOMPARE(plan.tooManyEntries, tooMany);
    QCOMPARE(plan.queue.size() < queueLimit, !tooMany);
}

void TestSendPlan::rowsBehindTheLimitAreNotBuilt()
{
    QStringList texts;
    for (int i = 0; i < queueLimit; ++i) {
        texts.append(QStringLiteral("++1"));
    }
    texts.append(QStringLiteral("01"));
    int built = 0;
    const auto countingFrame = [&built](const QString &text) {
        ++built;
        return fakeFrame(text);
    };
    QVERIFY(planLoop(rowsOf(texts), false, countingFrame).tooManyEntries);
    QCOMPARE(built, 0);
}

void TestSendPlan::instructionLengths()
{
    QCOMPARE(instructionLength("0102", false), 2);
    QCOMPARE(instructionLength("01020", false), 2);
    QCOMPARE(instructionLength("0102", true), 4);
    QCOMPARE(instructionLength(QString(), true), 2);
}

void TestSendPlan::messages()
{
    QCOMPARE(overlongInstructionWarning(300),
             QString("Instruction length 300 is out of the maximum range,<br> "
                     "sending errors may occur!"));
    QCOMPARE(unsentBytesMessage(70000),
             QString("Not sent: the device has yet to take 70000 bytes."));
    QCOMPARE(overlongRowsMessage({3, 12}),
             QString("row: 3 12 instruction length is out of the maximum range, "
                     "sending errors may occur!"));
}

void TestSendPlan::pieces_data()
{
    QTest::addColumn<QString>("block");
    QTest::addColumn<QStringList>("pieces");

    QTest::newRow("one frame") << "5A A5 01 42 " << QStringList{"5A A5 01 42 "};
    QTest::newRow("two frames") << "5A A5 01 42 5A A5 02 43 44 "
                                << QStringList{"5A A5 01 42 ", "5A A5 02 43 44 "};
    QTest::newRow("three short frames")
        << "5A A5 01 5A A5 02 5A A5 03 " << QStringList{"5A A5 01 ", "5A A5 02 ", "5A A5 03 "};
    QTest::newRow("no occurrence") << "01 42 02 43 " << QStringList{"01 42 02 43 "};
    QTest::newRow("start bytes in a payload")
        << "5A A5 03 01 5A A5 5A A5 01 42 " << QStringList{"5A A5 03 01 ", "5A A5 5A A5 01 42 "};
    QTest::newRow("start bytes right behind the length")
        << "5A A5 02 5A A5 5A A5 01 42 " << QStringList{"5A A5 02 ", "5A A5 5A A5 01 42 "};
    QTest::newRow("start bytes in place of the length")
        << "5A A5 5A A5 01 5A A5 01 42 " << QStringList{"5A A5 5A A5 01 ", "5A A5 01 42 "};
    QTest::newRow("start bytes in place of the length, last frame")
        << "5A A5 5A A5 " << QStringList{"5A A5 5A A5 "};
    QTest::newRow("bytes in front of the first occurrence")
        << "01 42 5A A5 01 5A A5 02 " << QStringList{"01 42 ", "5A A5 01 ", "5A A5 02 "};
    QTest::newRow("one occurrence at the end") << "01 42 5A A5 " << QStringList{"01 42 ", "5A A5 "};
    QTest::newRow("the other way round") << "A5 5A 01 42 " << QStringList{"A5 5A 01 42 "};
}

void TestSendPlan::pieces()
{
    QFETCH(QString, block);
    QFETCH(QStringList, pieces);
    QStringList result;
    for (const QByteArray &piece :
         splitBlock(QByteArray::fromHex(block.toLatin1()), StartBytes{0x5A, 0xA5})) {
        result.append(formatHexBytes(piece));
    }
    QCOMPARE(result, pieces);
    QCOMPARE(result.join(QString()), block);
}

QTEST_APPLESS_MAIN(TestSendPlan)
#include "tst_sendplan.moc"

#include "frames/sendplan.h"

#include "frames/delaymarker.h"

namespace {

constexpr int longestBatchFrame = 65535;
constexpr int bytesToNextFrame = 3;

int batchFrameLength(const QString &frameText, bool withCrc)
{
    constexpr int startBytesAndLength = 3;
    return instructionLength(frameText, withCrc) + startBytesAndLength;
}

bool isOverlong(const QString &frameText, bool withCrc)
{
    return batchFrameLength(frameText, withCrc) > longestBatchFrame;
}

/// Gathers the entries of a loop's queue, counting them against the limit.
class QueueBuilder
{
public:
    explicit QueueBuilder(LoopPlan &plan)
        : m_plan(plan)
    {}

    void addFrame(const QByteArray &frame) { m_pending.append(frame); }

    void addPause(int milliseconds)
    {
        closeBlock();
        addEntry({{}, milliseconds});
    }

    void closeBlock()
    {
        if (!m_pending.isEmpty()) {
            addEntry({m_pending, 0});
            m_pending.clear();
        }
    }

private:
    void addEntry(const QueueEntry &entry)
    {
        m_plan.queue.append(entry);
        m_plan.tooManyEntries = m_plan.queue.size() >= queueLimit;
    }

    LoopPlan &m_plan;
    QByteArray m_pending;
};

LoopStep pauseStep(int milliseconds)
{
    return {LoopStep::Kind::Pause, {}, {}, milliseconds};
}

LoopStep textStep(const QString &text, int intervalMs)
{
    return isDelay(text) ? pauseStep(delayMilliseconds(text))
                         : LoopStep{LoopStep::Kind::Text, text, {}, intervalMs};
}

LoopStep queueStep(const QueueEntry &entry)
{
    return entry.isPause() ? pauseStep(entry.pauseMs)
                           : LoopStep{LoopStep::Kind::Block, {}, entry.block, 0};
}

} // namespace

BatchPlan planBatch(const QVector<CheckedRow> &rows, bool withCrc, const MakeFrame &makeFrame)
{
    BatchPlan plan;
    for (const CheckedRow &row : rows) {
        if (isDelay(row.frameText)) {
            continue;
        }
        if (isOverlong(row.frameText, withCrc)) {
            plan.overlongRows.append(row.number);
        } else {
            plan.block.append(makeFrame(row.frameText));
        }
    }
    return plan;
}

LoopPlan planLoop(const QVector<CheckedRow> &rows, bool withCrc, const MakeFrame &makeFrame)
{
    LoopPlan plan;
    QueueBuilder queue(plan);
    for (const CheckedRow &row : rows) {
        if (isDelay(row.frameText)) {
            plan.texts.append(row.frameText);
            queue.addPause(delayMilliseconds(row.frameText));
        } else if (isOverlong(row.frameText, withCrc)) {
            plan.overlongRows.append(row.number);
        } else {
            plan.texts.append(row.frameText);
            queue.addFrame(makeFrame(row.frameText));
        }
        if (plan.tooManyEntries) {
            return plan;
        }
    }
    queue.closeBlock();
    return plan;
}

QVector<LoopStep> loopSteps(const LoopPlan &plan, int intervalMs)
{
    QVector<LoopStep> steps;
    if (intervalMs > 0) {
        for (const QString &text : plan.texts) {
            steps.append(textStep(text, intervalMs));
        }
    } else {
        for (const QueueEntry &entry : plan.queue) {
            steps.append(queueStep(entry));
        }
    }
    return steps;
}

int instructionLength(const QString &frameText, bool withCrc)
{
    constexpr int crcBytes = 2;
    return frameText.size() / 2 + (withCrc ? crcBytes : 0);
}

QString overlongInstructionWarning(int instructionLength)
{
    return QStringLiteral(
               "Instruction length %1 is out of the maximum range,<br> sending errors may occur!")
        .arg(instructionLength);
}

QString unsentBytesMessage(qint64 unsentBytes)
{
    return QStringLiteral("Not sent: the device has yet to take %1 bytes.").arg(unsentBytes);
}

QString overlongRowsMessage(const QVector<int> &rows)
{
    QString message = QStringLiteral("row:");
    for (const int row : rows) {
        message += QStringLiteral(" %1").arg(row);
    }
    return message +
           QStringLiteral(
               " instruction length is out of the maximum range, sending errors may occur!");
}

QVector<QByteArray> splitBlock(const QByteArray &block, StartBytes startBytes)
{
    const QByteArray header = bytesOf(startBytes);
    QVector<QByteArray> pieces;
    int begin = 0;
    int found = block.indexOf(header);
    while (found >= 0) {
        if (found > begin) {
            pieces.append(block.mid(begin, found - begin));
        }
        begin = found;
        found = block.indexOf(header, found + bytesToNextFrame);
    }
    return pieces << block.mid(begin);
}

#include "frames/sendplan.h"

#include "frames/crc16.h"
#include "frames/delaymarker.h"
#include "frames/messages.h"

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

void appendPart(QVector<BlockPart> &parts, const QByteArray &frame, const CheckedRow &row)
{
    if (!frame.isEmpty()) {
        parts.append(partOf(row, frame.size()));
    }
}

void appendText(LoopPlan &plan, const CheckedRow &row)
{
    plan.texts.append(row.frameText);
    plan.textRows.append(partOf(row));
}

/// Gathers the entries of a loop's queue, counting them against the limit.
class QueueBuilder
{
public:
    explicit QueueBuilder(LoopPlan &plan)
        : m_plan(plan)
    {}

    void addFrame(const QByteArray &frame, const CheckedRow &row)
    {
        m_pending.append(frame);
        appendPart(m_parts, frame, row);
    }

    void addPause(int milliseconds)
    {
        closeBlock();
        addEntry({{}, milliseconds, {}});
    }

    void closeBlock()
    {
        if (!m_pending.isEmpty()) {
            addEntry({m_pending, 0, m_parts});
            m_pending.clear();
            m_parts.clear();
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
    QVector<BlockPart> m_parts;
};

LoopStep pauseStep(int milliseconds)
{
    return {LoopStep::Kind::Pause, {}, {}, milliseconds, {}};
}

LoopStep textStep(const QString &text, const BlockPart &row, int intervalMs)
{
    return isDelay(text) ? pauseStep(delayMilliseconds(text))
                         : LoopStep{LoopStep::Kind::Text, text, {}, intervalMs, {row}};
}

LoopStep queueStep(const QueueEntry &entry)
{
    return entry.isPause() ? pauseStep(entry.pauseMs)
                           : LoopStep{LoopStep::Kind::Block, {}, entry.block, 0, entry.parts};
}

} // namespace

BlockPart partOf(const CheckedRow &row, int size)
{
    return {size, row.number, row.description, row.id, row.expectations};
}

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
            const QByteArray frame = makeFrame(row.frameText);
            plan.block.append(frame);
            appendPart(plan.parts, frame, row);
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
            appendText(plan, row);
            queue.addPause(delayMilliseconds(row.frameText));
        } else if (isOverlong(row.frameText, withCrc)) {
            plan.overlongRows.append(row.number);
        } else {
            appendText(plan, row);
            queue.addFrame(makeFrame(row.frameText), row);
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
        for (int i = 0; i < plan.texts.size(); ++i) {
            steps.append(textStep(plan.texts.at(i), plan.textRows.value(i), intervalMs));
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
    return frameText.size() / 2 + (withCrc ? crcSize : 0);
}

QString overlongInstructionWarning(int instructionLength)
{
    return Messages::tr("Instruction length %1 is out of the maximum range,<br> sending errors "
                        "may occur!")
        .arg(instructionLength);
}

QString unsentBytesMessage(qint64 unsentBytes)
{
    return Messages::tr("Not sent: the device has yet to take %1 bytes.").arg(unsentBytes);
}

QString overlongRowsMessage(const QVector<int> &rows)
{
    QString numbers;
    for (const int row : rows) {
        numbers += QStringLiteral(" %1").arg(row);
    }
    return Messages::tr("row:%1 instruction length is out of the maximum range, sending errors "
                        "may occur!")
        .arg(numbers);
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

int rowIdAt(const QVector<BlockPart> &parts, int position)
{
    int end = 0;
    for (const BlockPart &part : parts) {
        end += part.size;
        if (position < end) {
            return part.rowId;
        }
    }
    return 0;
}

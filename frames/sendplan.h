#pragma once

#include "frames/startbytes.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

/// A row that takes part in sending: its number in the table, from 1, its frame text (CMD, Addr and
/// Data joined, without blanks), its description, and its identity, which stays when it moves.
struct CheckedRow
{
    int number = 0;
    QString frameText;
    QString description = {};
    /// 0 where there is none.
    int id = 0;
    /// The lines that say what it is to be answered with.
    QString expectations = {};
};

/// One frame of a block: how long it is, in bytes, and the row that it is made of.
struct BlockPart
{
    int size = 0;
    /// From 1; 0 where it isn't known.
    int row = 0;
    QString description = {};
    /// The row's identity; 0 where it isn't known.
    int rowId = 0;
    /// The lines that say what the row is to be answered with.
    QString expectations = {};
};

/// The part that a row's frame of that many bytes is.
BlockPart partOf(const CheckedRow &row, int size = 0);

/// Makes the frame of a frame text; empty when there is nothing to send.
using MakeFrame = std::function<QByteArray(const QString &frameText)>;

/// All checked rows as one block of frames.
struct BatchPlan
{
    QByteArray block;
    QVector<int> overlongRows;
    /// The block's frames.
    QVector<BlockPart> parts;
};

/// One entry of the loop's queue: a block of frames, or a pause where the block is empty.
struct QueueEntry
{
    QByteArray block;
    int pauseMs = 0;
    QVector<BlockPart> parts = {};

    bool isPause() const { return block.isEmpty(); }
};

/// What the loop sends in each pass: row by row (`texts`), or in prepared blocks (`queue`).
struct LoopPlan
{
    QStringList texts;
    /// The row of each text; its size is not known yet.
    QVector<BlockPart> textRows;
    QVector<QueueEntry> queue;
    QVector<int> overlongRows;
    /// The queue has reached its limit; the rows after that are not planned.
    bool tooManyEntries = false;
};

/// One step of a pass: something to send, if it sends, and the wait in ms that follows.
struct LoopStep
{
    enum class Kind { Text, Block, Pause };
    Kind kind = Kind::Pause;
    QString text;
    QByteArray block;
    int waitMs = 0;
    QVector<BlockPart> parts = {};

    bool sends() const { return kind != Kind::Pause; }
};

/// The number of queue entries with which a loop is refused.
constexpr int queueLimit = 128;

/// The block that "send all" sends: delay rows take no part, overlong rows are only recorded.
BatchPlan planBatch(const QVector<CheckedRow> &rows, bool withCrc, const MakeFrame &makeFrame);

/// What a loop over the rows sends. A delay row ends a block and adds a pause to the queue.
LoopPlan planLoop(const QVector<CheckedRow> &rows, bool withCrc, const MakeFrame &makeFrame);

/// The steps of a pass: each row followed by the interval in ms, or with none the prepared blocks.
QVector<LoopStep> loopSteps(const LoopPlan &plan, int intervalMs);

/// Bytes of payload and CRC that a single row's frame text stands for.
/// See docs/deliberate.md, Two lengths.
int instructionLength(const QString &frameText, bool withCrc);

/// The warning about a single row's instruction of that many bytes.
QString overlongInstructionWarning(int instructionLength);

/// The message about what was not sent because so many bytes still wait to leave the program.
QString unsentBytesMessage(qint64 unsentBytes);

/// The message about the rows left out of a batch or a loop.
QString overlongRowsMessage(const QVector<int> &rows);

/// Cuts a block at its frames: at each occurrence of the start bytes. The next one is looked
/// for from 3 bytes behind the beginning of the previous one on. The pieces together are the block.
QVector<QByteArray> splitBlock(const QByteArray &block, StartBytes startBytes);

/// The identity of the row whose frame has the byte at that place of the block; 0 where it isn't
/// known.
int rowIdAt(const QVector<BlockPart> &parts, int position);

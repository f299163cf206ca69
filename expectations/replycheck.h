#pragma once

#include "expectations/rowexpectation.h"
#include "expectations/rowtrial.h"
#include "frames/sendplan.h"
#include "frames/timeunits.h"

#include <QHash>

#include <deque>
#include <optional>

/// Finds the received frames that are not what the rows they answer expect, while rows go out at
/// any pace.
///
/// A frame that fits what some row still waits for is good. Any other one answers what went out
/// last, and of rows that went out together the first that waits. A row without expectations takes
/// one frame, whatever it is.
class ReplyCheck
{
public:
    /// How long a row's frames are taken for its answers at least, in ns.
    static constexpr qint64 longestWaitNs = nsPerSecond;

    /// The rows of a block went out at that time.
    void noteSent(const QVector<BlockPart> &parts, qint64 timeNs);

    /// Whether a frame that comes in would have to be judged.
    bool isWaiting() const { return !m_waiting.empty(); }

    /// Why a frame is not what is expected; empty where it is, or where nothing is. It was handed
    /// up at that time, in ns, which may be a while after it was read.
    ///
    /// Frames that are handed up together have the time of the first one. A later one of them may
    /// answer what was sent meanwhile.
    QString judge(const ReceivedFrame &frame, qint64 handedUpNs);

private:
    struct Waiting
    {
        qint64 sentNs = 0;
        /// Nothing for a row without expectations.
        std::optional<RowTrial> trial;
    };
    using Place = std::deque<Waiting>::iterator;

    std::optional<RowTrial> trialOf(const QString &expectations, qint64 timeNs);
    void forgetOld(qint64 nowNs);
    bool isTakenByARowThatItFits(const ReceivedFrame &frame, bool mayBeLater);
    Place answered(qint64 timeNs);
    void take(Place place, const ReceivedFrame &frame);

    std::deque<Waiting> m_waiting;
    /// When the last frame was read.
    qint64 m_readNs = 0;
    QHash<QString, RowExpectation> m_known;
};

#include "log/replytexts.h"

#include "frames/messages.h"
#include "log/durationtext.h"

#include <QStringList>

namespace {

constexpr int nearlyAll = 99;

} // namespace

QString rowRepliesText(const Replies *replies)
{
    if (replies == nullptr) {
        return {};
    }
    const Durations &times = replies->times;
    QStringList lines{Messages::tr("Sent %1, answered %2, lost %3 (none within 1 s)")
                          .arg(replies->sent)
                          .arg(times.count())
                          .arg(replies->lost)};
    if (times.count() > 0) {
        lines.append(Messages::tr("Reply time: last %1, median %2, 99 % within %3")
                         .arg(shortDuration(replies->lastNs), shortDuration(times.median()),
                              shortDuration(times.percentile(nearlyAll))));
    }
    return lines.join(QLatin1Char('\n'));
}

QString loopFiguresText(const LoopFigures &figures)
{
    const Durations &times = figures.replies.times;
    const Durations &late = figures.lateness;
    const auto text = [](const Durations &durations, qint64 ns) {
        return durations.count() > 0 ? shortDuration(ns) : QStringLiteral("–");
    };
    return Messages::tr("Passes: %1\nFrames: %2 out, %3 in, %4 lost\n"
                        "Reply: %5, 99 %: %6\nLate: %7, 99 %: %8,\nat most %9")
        .arg(figures.passes)
        .arg(figures.replies.sent)
        .arg(figures.received)
        .arg(figures.replies.lost)
        .arg(text(times, times.median()), text(times, times.percentile(nearlyAll)),
             text(late, late.median()), text(late, late.percentile(nearlyAll)),
             text(late, late.most()));
}

#include "loopbench.h"

LoopBench::LoopBench()
{
    settings.layout.withStartBytes = false;
    settings.layout.withLength = false;
    sender.setLink(&link);
    QObject::connect(&loop, &SendLoop::passEnded, &loop,
                     [this] { endedAtNs = link.clock.nsecsElapsed(); });
}

void LoopBench::start(const QStringList &texts, int intervalMs)
{
    QVector<CheckedRow> rows;
    for (const QString &text : texts) {
        rows.append({rows.size() + 1, text});
    }
    loop.start(sender.planLoop(rows), intervalMs);
}

void LoopBench::run(const QStringList &texts, int intervalMs)
{
    start(texts, intervalMs);
    loop.runPass();
}

QString LoopBench::written() const
{
    QStringList texts;
    for (const QByteArray &block : link.blocks) {
        texts.append(QString::fromLatin1(block.toHex()));
    }
    return texts.join(QLatin1Char(' '));
}

qint64 LoopBench::gapBefore(int block) const
{
    return link.writtenAtNs.at(block) - link.writtenAtNs.at(block - 1);
}

bool runsThrough(const QStringList &texts, int intervalMs)
{
    LoopBench other;
    other.run(texts, intervalMs);
    return !other.passEnded.isEmpty() || other.passEnded.wait();
}

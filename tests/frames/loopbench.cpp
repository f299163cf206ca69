#include "loopbench.h"

LoopBench::LoopBench()
{
    settings.layout.withStartBytes = false;
    settings.layout.withLength = false;
    link.onWrite = [this] { m_writtenAt.append(clock.now()); };
    sender.setLink(&link);
}

void LoopBench::start(const QStringList &texts, LoopTiming timing)
{
    QVector<CheckedRow> rows;
    for (const QString &text : texts) {
        rows.append({rows.size() + 1, text});
    }
    loop.start(sender.planLoop(rows), timing);
}

void LoopBench::run(const QStringList &texts, LoopTiming timing)
{
    start(texts, timing);
    loop.runPass();
}

void LoopBench::keepRunning()
{
    QObject::connect(&loop, &SendLoop::passDue, &loop, &SendLoop::runPass);
}

QString LoopBench::written() const
{
    QStringList texts;
    for (const QByteArray &block : link.blocks) {
        texts.append(QString::fromLatin1(block.toHex()));
    }
    return texts.join(QLatin1Char(' '));
}

QString LoopBench::timetable()
{
    QStringList entries;
    for (; m_listed < link.blocks.size(); ++m_listed) {
        const double atMs = double(m_writtenAt.at(m_listed) - m_madeAt) / nsPerMs;
        entries.append(QString::fromLatin1(link.blocks.at(m_listed).toHex()) + QLatin1Char('@') +
                       QString::number(atMs));
    }
    return entries.join(QLatin1Char(' '));
}

#include "runbench.h"

void FakeWire::setFormat(const FrameLayout & /*layout*/, int /*gapMs*/)
{
    ++formats;
}

qint64 FakeWire::send(const PlannedRow &row)
{
    sent.append(row.frame);
    times.append(double(m_clock.now() - m_began) / double(nsPerMs));
    return m_clock.now();
}

void FakeWire::receive(const QByteArray &payload)
{
    emit frameArrived({payload, payload, ReceivedFrame::Crc::None, m_clock.now()});
}

RunBench::RunBench()
    : wire(clock)
{}

FilePlan RunBench::plan(const QByteArray &text, const QString &name) const
{
    FileSettings bare;
    bare.withStartBytes = false;
    bare.withLength = false;
    QVector<FileFault> faults;
    const TestFile file = readTestFile(name, text);
    const FilePlan plan = planFile(file, bare, RowChoice::selected(), faults);
    return file.faults.isEmpty() && faults.isEmpty() ? plan : FilePlan();
}

void RunBench::start(const QVector<FilePlan> &plans)
{
    run = std::make_unique<Run>(RunPlan{plans, rules}, wire, clock);
    QObject::connect(run.get(), &Run::judged, run.get(),
                     [this](const RowResult &result) { results.append(result); });
    QObject::connect(run.get(), &Run::fileBegan, run.get(), [this, plans](int file, int pass) {
        files.append(QStringLiteral("%1/%2").arg(plans.at(file).name).arg(pass));
    });
    QObject::connect(run.get(), &Run::ended, run.get(), [this](RunEnd why) { end = why; });
    run->start();
}

void RunBench::advance(int milliseconds)
{
    for (int i = 0; i < milliseconds; ++i) {
        clock.advance(1);
        for (auto &[ms, payload] : m_coming) {
            --ms;
        }
        while (!m_coming.isEmpty() && m_coming.first().first <= 0) {
            wire.receive(m_coming.takeFirst().second);
        }
        for (; m_answered < wire.sent.size(); ++m_answered) {
            const QByteArray answer = answers.value(wire.sent.at(m_answered));
            if (!answer.isEmpty()) {
                m_coming.append({answersAfterMs, answer});
            }
        }
    }
}

QStringList RunBench::verdicts() const
{
    QStringList texts;
    for (const RowResult &result : results) {
        texts.append(QStringLiteral("%1 %2").arg(result.number).arg(verdictWord(result.verdict)));
    }
    return texts;
}

#include "runner/runplan.h"

#include "frames/delaymarker.h"

#include <algorithm>

namespace {

template<typename Value>
std::optional<Value> firstOf(const std::optional<Value> &first, const std::optional<Value> &second)
{
    return first ? first : second;
}

constexpr StartBytes usualStartBytes{0x5A, 0xA5};

} // namespace

bool FilePlan::hasSomethingToSend() const
{
    return std::any_of(rows.begin(), rows.end(),
                       [](const PlannedRow &row) { return !row.isPause(); });
}

bool RunPlan::hasSomethingToSend() const
{
    return std::any_of(files.begin(), files.end(),
                       [](const FilePlan &file) { return file.hasSomethingToSend(); });
}

bool RunPlan::keepsIntervals() const
{
    return std::any_of(files.begin(), files.end(), [](const FilePlan &file) {
        const auto isPause = [](const PlannedRow &row) { return row.isPause(); };
        return file.intervalMs > 0 || file.cycleDelayMs > 0 ||
               std::any_of(file.rows.begin(), file.rows.end(), isPause);
    });
}

FileSettings merged(const FileSettings &first, const FileSettings &second)
{
    return {firstOf(first.startBytes, second.startBytes),
            firstOf(first.withStartBytes, second.withStartBytes),
            firstOf(first.withLength, second.withLength),
            firstOf(first.withCrc, second.withCrc),
            firstOf(first.replyTimeoutMs, second.replyTimeoutMs),
            firstOf(first.intervalMs, second.intervalMs),
            firstOf(first.cycleDelayMs, second.cycleDelayMs),
            firstOf(first.gapMs, second.gapMs)};
}

FilePlan emptyPlan(const QString &name, const FileSettings &settings)
{
    FilePlan plan;
    plan.name = name;
    plan.layout.startBytes = settings.startBytes.value_or(usualStartBytes);
    plan.layout.withStartBytes = settings.withStartBytes.value_or(true);
    plan.layout.withLength = settings.withLength.value_or(true);
    plan.layout.withCrc = settings.withCrc.value_or(false);
    plan.replyTimeoutMs = settings.replyTimeoutMs.value_or(plan.replyTimeoutMs);
    plan.intervalMs = settings.intervalMs.value_or(plan.intervalMs);
    plan.cycleDelayMs = settings.cycleDelayMs.value_or(plan.cycleDelayMs);
    plan.gapMs = settings.gapMs.value_or(plan.gapMs);
    return plan;
}

PlannedRow plannedRow(const TestRow &row, const FrameLayout &layout)
{
    const QString text = frameText(row.row);
    PlannedRow planned{row.number, row.row.description, {}, 0, row.expectation};
    if (isDelay(text)) {
        planned.pauseMs = delayMilliseconds(text);
    } else {
        planned.frame = buildFrame(text, layout);
    }
    return planned;
}

FilePlan planFile(const TestFile &file, const FileSettings &settings, const RowChoice &choice,
                  QVector<FileFault> &faults)
{
    FilePlan plan = emptyPlan(file.name, merged(settings, file.settings));
    for (const TestRow &row : file.rows) {
        if (!choice.contains(row.number, row.row.selected)) {
            continue;
        }
        plan.rows.append(plannedRow(row, plan.layout));
        if (plan.rows.last().isPause() && !isDelay(row.row.cmd)) {
            faults.append(
                {row.line, {1, QStringLiteral("row %1 holds no whole bytes").arg(row.number)}});
        }
    }
    return plan;
}

#pragma once

#include "handclock.h"
#include "runner/run.h"
#include "runner/wire.h"

#include <QMap>

#include <functional>
#include <memory>

/// A wire without a device: it notes what is sent and when, and lets a test answer.
class FakeWire : public Wire
{
public:
    explicit FakeWire(HandClock &clock)
        : m_clock(clock)
        , m_began(clock.now())
    {}

    void setFormat(const FrameLayout &layout, int gapMs) override;
    qint64 send(const PlannedRow &row) override;
    bool isBehind() const override { return behind; }
    bool isDrained() const override { return drained; }

    /// A frame with this payload comes in now.
    void receive(const QByteArray &payload);

    bool behind = false;
    bool drained = true;
    int formats = 0;
    QVector<QByteArray> sent;
    /// In ms since the bench was made.
    QVector<double> times;

private:
    HandClock &m_clock;
    qint64 m_began;
};

/// A run over a wire and a clock that a test moves on.
class RunBench
{
public:
    RunBench();

    /// A plan of this file's selected rows. Frames are the payloads alone.
    FilePlan plan(const QByteArray &text, const QString &name = QStringLiteral("list.txt")) const;

    /// Starts a run over the files.
    void start(const QVector<FilePlan> &files);
    void start(const QByteArray &text) { start({plan(text)}); }

    /// Moves the clock on by one ms at a time, and answers each row that was sent so many ms later.
    void advance(int milliseconds);

    /// How the rows' verdicts read: "1 pass", "2 fail".
    QStringList verdicts() const;

    HandClock clock;
    FakeWire wire;
    RunRules rules;
    /// The payload that answers a payload, and after how many ms.
    QMap<QByteArray, QByteArray> answers;
    int answersAfterMs = 1;
    QVector<RowResult> results;
    QStringList files;
    std::optional<RunEnd> end;
    std::unique_ptr<Run> run;

private:
    QVector<QPair<int, QByteArray>> m_coming;
    int m_answered = 0;
};

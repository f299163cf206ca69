#pragma once

#include "frames/sendloop.h"

#include <QWidget>

#include <memory>

namespace Ui {
class LoopArea;
}

/// The auto-send loop's own part of the window: its times, how often it repeats, and its button.
class LoopArea : public QWidget
{
    Q_OBJECT

public:
    /// Makes the timing fields take milliseconds.
    explicit LoopArea(QWidget *parent = nullptr);
    ~LoopArea() override;

    /// Interval between frames and delay between cycles; 0 ms for a text that is no number. An
    /// empty number of passes is endless.
    LoopTiming timing() const;

    /// Puts in how many passes the loop makes; a number that can't be typed leaves it endless.
    void setRepeat(int passes);

    /// Shows whether the loop runs; its times can't be changed then, and in place of the number of
    /// passes stands how far it is.
    void showRunning(bool running);

    /// Shows which pass a running loop is in, from 1.
    void showPass(qint64 pass);

signals:
    /// The loop is to make so many passes.
    void repeatChanged(int passes);

private:
    void prepareTimingFields();
    void prepareRepeatField();
    void reserveButtonWidth();
    int repeat() const;

    std::unique_ptr<Ui::LoopArea> m_form;
};

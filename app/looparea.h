#pragma once

#include "frames/sendloop.h"

#include <QWidget>

#include <memory>

namespace Ui {
class LoopArea;
}

/// The auto-send loop's own part of the window: its times and its button.
class LoopArea : public QWidget
{
    Q_OBJECT

public:
    /// Makes the timing fields take milliseconds.
    explicit LoopArea(QWidget *parent = nullptr);
    ~LoopArea() override;

    /// Interval between frames and delay between cycles; 0 ms for a text that is no number.
    LoopTiming timing() const;

    /// Shows whether the loop runs; its times can't be changed then.
    void showRunning(bool running);

private:
    void prepareTimingFields();

    std::unique_ptr<Ui::LoopArea> m_form;
};

#pragma once

#include "alarmclock.h"
#include "looppanel.h"
#include "sendloop.h"

#include <QObject>

#include <memory>

/// Starts and stops the auto-send loop as the window's fields and rows say.
class LoopControl : public QObject
{
    Q_OBJECT

public:
    /// Form and sender must outlive the control.
    LoopControl(Ui::Dialog &form, Sender &sender, QObject *parent = nullptr);

    bool isRunning() const { return m_loop.isRunning(); }

    /// Whether a frame of the loop is about to be due, so that nothing that takes long had better
    /// begin now.
    bool isFrameNear() const;

    /// Starts a loop over the rows on the sender's link; the user is told why where it can't be.
    void start(const QVector<CheckedRow> &rows, LinkMode mode);

    /// Ends the loop if one runs.
    void stop();

    /// Runs one pass; the next one is due a cycle delay after its end.
    void tick() { m_loop.runPass(); }

signals:
    /// The next pass is due.
    void passDue();

    /// Something the user must be told.
    void message(const QString &text);

private:
    bool isAcceptable(const LoopPlan &plan);

    Sender &m_sender;
    std::unique_ptr<AlarmClock> m_clock;
    SendLoop m_loop;
    LoopPanel m_panel;
    LinkMode m_mode = LinkMode::Uart;
};

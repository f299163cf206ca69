#pragma once

#include "looppanel.h"
#include "sendloop.h"

#include <QObject>
#include <QTimer>

/// Starts and stops the auto-send loop as the window's fields and rows say.
class LoopControl : public QObject
{
    Q_OBJECT

public:
    /// Form and sender must outlive the control.
    LoopControl(Ui::Dialog &form, Sender &sender, QObject *parent = nullptr);

    bool isRunning() const { return m_loop.isRunning(); }

    /// Starts a loop over the rows on the sender's link; the user is told why where it can't be.
    void start(const QVector<CheckedRow> &rows, LinkMode mode);

    /// Ends the loop if one runs.
    void stop();

    /// Runs one pass; the next tick comes a cycle delay after its end.
    void tick();

    /// Fires when the next pass is due.
    const QTimer &timer() const { return m_timer; }

signals:
    /// Something the user must be told.
    void message(const QString &text);

private:
    bool isAcceptable(const LoopPlan &plan);

    Sender &m_sender;
    SendLoop m_loop;
    LoopPanel m_panel;
    QTimer m_timer;
    LinkMode m_mode = LinkMode::Uart;
    int m_cycleDelayMs = 0;
};

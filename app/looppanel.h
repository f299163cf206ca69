#pragma once

#include "frames/sendloop.h"
#include "links/linkmode.h"

#include <QList>
#include <QObject>

namespace Ui {
class Dialog;
}
class QWidget;
class Session;

/// What the window looks like while the auto-send loop runs: which widgets rest, and the loop
/// button.
class LoopPanel : public QObject
{
    Q_OBJECT

public:
    /// Makes the timing fields take milliseconds. The form must outlive the panel.
    explicit LoopPanel(Ui::Dialog &form, QObject *parent = nullptr);

    /// Shows what the session's loop does.
    void follow(Session &session);

    /// Disables what must not change under a running loop over the link, and shows it as running.
    void showRunning(LinkMode mode);

    /// Enables the widgets again after the loop was stopped, and shows it as idle.
    void showStopped();

    /// The look after a loop that found nothing to send: only the serial tab's widgets come back,
    /// whatever the link, and the tabs stay disabled.
    void showNothingToSend();

    /// Interval between frames and delay between cycles; 0 ms for a text that is no number.
    LoopTiming timing() const;

private:
    void prepareTimingFields();
    QList<QWidget *> fileAndTimingWidgets() const;
    QList<QWidget *> linkWidgets(LinkMode mode) const;
    void showIdleButton();

    Ui::Dialog &m_form;
    LinkMode m_mode = LinkMode::Uart;
};

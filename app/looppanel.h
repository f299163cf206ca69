#pragma once

#include "links/linkmode.h"

#include <QObject>

class CommandArea;
class HidTab;
class LoopArea;
class QPushButton;
class QTabWidget;
class SerialTab;
class Session;

/// The pieces of the window that change with the auto-send loop.
struct LoopPieces
{
    LoopArea &loop;
    QTabWidget &tabs;
    SerialTab &serial;
    HidTab &hid;
    CommandArea &commands;
    QPushButton &saveMessages;
};

/// What the window looks like while the auto-send loop runs: which widgets rest, and the loop
/// button.
class LoopPanel : public QObject
{
    Q_OBJECT

public:
    /// The pieces must outlive the panel.
    explicit LoopPanel(const LoopPieces &pieces, QObject *parent = nullptr);

    /// Shows what the session's loop does.
    void follow(Session &session);

private:
    void showRunning(LinkMode mode);
    void showStopped();
    void showNothingToSend();
    void setResting(bool resting);
    void setLinkResting(LinkMode mode, bool resting);

    LoopPieces m_pieces;
    LinkMode m_mode = LinkMode::Uart;
};

#pragma once

#include "links/linkmode.h"

#include <QObject>
#include <QTimer>

class CommandArea;
class HidTab;
class LoopArea;
class QPushButton;
class QTabWidget;
class SerialTab;
class Session;
class WindowMemory;

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

/// What the window looks like while the auto-send loop runs: which widgets rest, the loop button,
/// and how far it is.
class LoopPanel : public QObject
{
    Q_OBJECT

public:
    /// The pieces must outlive the panel.
    explicit LoopPanel(const LoopPieces &pieces, QObject *parent = nullptr);

    /// Shows what the session's loop does.
    void follow(Session &session);

    /// The number of passes is the one of the run before, and is kept for the next one. The memory
    /// must outlive the panel.
    void remember(WindowMemory &memory);

private:
    void showRunning(LinkMode mode);
    void showStopped();
    void showNothingToSend();
    void notePass(qint64 pass);
    void showPass();
    void setResting(bool resting);
    void setLinkResting(LinkMode mode, bool resting);

    LoopPieces m_pieces;
    LinkMode m_mode = LinkMode::Uart;
    qint64 m_pass = 0;
    qint64 m_shownPass = 0;
    /// Passes may be too many to show each.
    QTimer m_nextCount;
};

#pragma once

#include "app/devicelists.h"
#include "app/hidpanel.h"
#include "app/linkstatus.h"
#include "app/serialpanel.h"
#include "links/watch/systemwatch.h"

#include <QObject>

class HidTab;
class SerialTab;
class Session;
class StatusLine;
class WindowMemory;

/// The two link tabs and the session's links behind them: what is opened and closed, which ports
/// and devices there are, and what the user is told of all that.
class LinkPanels : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this.
    LinkPanels(SerialTab &serialTab, HidTab &hidTab, Session &session, StatusLine &status,
               QObject *parent = nullptr);

    SerialPanel &serial() { return m_serial; }
    HidPanel &hid() { return m_hid; }

    /// Uses the link of a tab; what was told before goes.
    void goToTab(int index);

    /// Reads the lists of ports and devices anew.
    void refreshLists() { m_lists.refresh(); }

    /// Keeps the lists up to date from now on. Where announcements come as window messages, they go
    /// to the window given.
    void watchDevices(const WindowHandle &window);

    /// Whether a lost port is opened again is as in the run before, and kept for the next one. The
    /// memory must outlive this.
    void remember(WindowMemory &memory);

    /// The CRC box of the tab that is used counts for what is sent and logged from now on.
    void takeCrcFlag();

signals:
    /// The lists are due; who shows them calls `refreshLists`.
    void listsDue();

    /// Something the user must be told; handlers may block.
    void notice(const QString &text);

private:
    void followReopener();
    void tellLoss(LinkMode mode, const QString &name, const QString &reason);

    SerialTab &m_serialTab;
    HidTab &m_hidTab;
    Session &m_session;
    StatusLine &m_status;
    SerialPanel m_serial;
    HidPanel m_hid;
    DeviceLists m_lists;
    LinkStatus m_linkStatus;
};

#pragma once

#include "links/linkmode.h"

#include <QObject>

class HidPanel;
class SerialPanel;
class Session;
class StatusLine;

/// Keeps the status line up to date about the links: what is open, why it didn't open, and that it
/// was lost.
class LinkStatus : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this.
    LinkStatus(StatusLine &status, Session &session, QObject *parent = nullptr);

    /// Tells why a tab's link didn't open.
    void follow(const SerialPanel &panel);
    void follow(const HidPanel &panel);

private:
    void followOpen(Session &session);

    StatusLine &m_status;
};

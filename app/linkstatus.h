#pragma once

#include "links/linkmode.h"

#include <QObject>

class HidPanel;
class SerialPanel;
class Session;
class StatusLine;

/// Keeps the status line up to date about the links: what is open, why it didn't open, that it
/// was lost, and that it is back.
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
    void followReopener(Session &session);
    void tellLoss(const QString &name, const QString &reason, bool isWaitedFor);

    StatusLine &m_status;
};

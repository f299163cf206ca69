#pragma once

#include <QObject>

class DeviceWatch;
class HidLink;
class HidPanel;
class SerialLink;
class SerialPanel;
class StatusLine;

/// Keeps the status line up to date about the links: what is open, why it didn't open, and that it
/// was lost.
class LinkStatus : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this.
    LinkStatus(StatusLine &status, const DeviceWatch &devices, QObject *parent = nullptr);

    /// Follows a tab and its link. To be called before anybody closes a link that was lost, since a
    /// closed one has no name.
    void follow(const SerialPanel &panel, const SerialLink &link);
    void follow(const HidPanel &panel, const HidLink &link);

private:
    StatusLine &m_status;
    const DeviceWatch &m_devices;
};

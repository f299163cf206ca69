#pragma once

#include "runner/runoptions.h"

#include <QObject>
#include <QTimer>

#include <memory>

class Session;
class SimulatedDevice;

/// Opens the link of a session. If asked to, it waits until the device is there.
class LinkOpener : public QObject
{
    Q_OBJECT

public:
    /// The session must outlive this.
    LinkOpener(Session &session, LinkChoice choice, QObject *parent = nullptr);
    ~LinkOpener() override;

    /// The start bytes of a simulated device.
    void setDeviceFormat(StartBytes startBytes, bool withCrc);

    /// Tries at once. The outcome is told from the event loop.
    void start();

signals:
    void opened();
    /// The link can't be opened, for the reason given.
    void failed(const QString &reason);

private:
    void tryToOpen();
    bool open();
    bool openPort(const SerialSettings &settings);
    bool openHid();
    bool openSimulated();

    Session &m_session;
    LinkChoice m_choice;
    StartBytes m_deviceStart;
    bool m_deviceCrc = false;
    std::unique_ptr<SimulatedDevice> m_device;
    QTimer m_nextTry;
    qint64 m_giveUpNs = 0;
    QString m_reason;
};

#pragma once

#include "runner/runoptions.h"

#include <QObject>
#include <QTimer>

#include <memory>

class Session;
class SimulatedDevice;

/// Opens the link of a session, and waits for it if it is to.
class LinkOpener : public QObject
{
    Q_OBJECT

public:
    /// The session must outlive this.
    LinkOpener(Session &session, LinkChoice choice, QObject *parent = nullptr);
    ~LinkOpener() override;

    /// A simulated device speaks with these.
    void setDeviceFormat(StartBytes startBytes, bool withCrc);

    /// Tries at once, and tells from the event loop what came of it.
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

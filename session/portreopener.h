#pragma once

#include "links/serial/seriallink.h"

#include <QObject>

#include <memory>
#include <optional>

class AlarmClock;

/// Opens a serial port again that was lost while it was open, as soon as it is back.
///
/// A port that is back may refuse to be opened until the system has given it its permissions, so
/// that is tried for a while. Whoever opens a port, or chooses another one or other settings, has
/// decided what to do instead.
class PortReopener : public QObject
{
    Q_OBJECT

public:
    /// How often a port that is back is tried, and how long, in ms.
    static constexpr int retryMs = 100;
    static constexpr int longestTryMs = 5000;

    /// The link must outlive this.
    PortReopener(SerialLink &link, std::unique_ptr<AlarmClock> clock, QObject *parent = nullptr);
    ~PortReopener() override;

    /// Off at first. When it is switched off, nothing is waited for any more.
    void setOn(bool on);

    /// Whether a port was lost and is to be opened when it is back.
    bool isWaiting() const { return m_wanted.has_value(); }

    /// The open port was lost and is closed now.
    void noteLoss();

    /// The port of that name has come; any port may have where the name is empty.
    void noteArrival(const QString &portName);

    /// The user wants that port opened. An empty name is none.
    void notePort(const QString &portName);

    /// The user has chosen these settings for the port that is opened next.
    void noteLine(const SerialSettings &chosen);

    /// Waits for nothing any more.
    void forget();

signals:
    /// The port of that name is lost, and waited for from now on.
    void waiting(const QString &portName);

    /// It is open again.
    void reopened(const QString &portName);

    /// It is back by its name, but didn't open; it is still waited for. The link says why.
    void refused(const QString &portName);

    /// What was waited for isn't any more.
    void forgotten();

private:
    bool isWanted(const QString &portName) const;
    void beginToTry();
    void tryToOpen();

    SerialLink &m_link;
    std::unique_ptr<AlarmClock> m_clock;
    bool m_isOn = false;
    std::optional<SerialSettings> m_wanted;
    /// It was told to have come since it was lost.
    bool m_isBackByName = false;
    qint64 m_tryUntilNs = 0;
    /// What has come last, and when: it may be told before the loss is.
    QString m_arrived;
    std::optional<qint64> m_arrivedNs;
};

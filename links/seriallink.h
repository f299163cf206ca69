#pragma once

#include "arrivalwait.h"
#include "exacttiming.h"
#include "link.h"
#include "openfailure.h"

#include <QObject>
#include <QSerialPort>

#include <optional>

/// How a serial port is opened; flow control is always off.
struct SerialSettings
{
    /// A name that the port list shows, or an absolute path.
    QString portName;
    /// In baud; the port decides whether it takes the rate.
    qint32 baudRate = 115200;
    QSerialPort::DataBits dataBits = QSerialPort::Data8;
    QSerialPort::Parity parity = QSerialPort::NoParity;
    QSerialPort::StopBits stopBits = QSerialPort::OneStop;
};

/// The link over a serial port.
class SerialLink : public QObject, public Link
{
    Q_OBJECT

public:
    /// At most `longestRead` bytes are taken from the system at a time; the rest waits there.
    explicit SerialLink(int longestRead, QObject *parent = nullptr);

    /// Opens the port for reading and writing, closing an open one first. Returns whether it is
    /// open.
    bool open(const SerialSettings &settings);

    /// Why the last attempt to open a port failed, if it did.
    const OpenFailure &failure() const { return m_failure; }

    /// Hands up what has been announced, drops what is still to be sent or read, and closes the
    /// port.
    void close();

    /// The name that the open port was opened by; empty while the link is closed.
    QString openPortName() const { return m_openPortName; }

    /// Looks for what has come in, as if the port had announced it.
    void receive();

    bool isOpen() const override;
    QString closedMessage() const override;
    int longestInstruction() const override;
    void write(const QByteArray &block) override;
    qint64 unsentBytes() const override;

signals:
    /// What has come in, 2 to 7 ms after the port announced it, so that a frame in pieces comes in
    /// whole. Handlers may block; meanwhile the port isn't read any further.
    void arrived(const QByteArray &bytes);

    /// The open port has failed for good, for the reason given. Emitted once, from the event loop.
    void lost(const QString &reason);

private:
    void handUp();
    QByteArray readAvailable();
    void onReadyRead();
    void onError(QSerialPort::SerialPortError error);
    void resumeReading();
    OpenFailure failureToOpen() const;
    void reportLoss(const QString &reason);

    QSerialPort m_port;
    QString m_openPortName;
    OpenFailure m_failure;
    /// Held while the port is open.
    std::optional<ExactTiming> m_timing;
    ArrivalWait m_wait;
    bool m_handsUp = false;
    bool m_isDueMeanwhile = false;
    bool m_failed = false;
    int m_vainReads = 0;
};

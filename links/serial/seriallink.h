#pragma once

#include "frames/link.h"
#include "links/exacttiming.h"
#include "links/openfailure.h"
#include "links/serial/arrivalwait.h"

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
///
/// What has come in is handed up 2 to 7 ms after the port announced it, so that a frame in pieces
/// comes in whole. While a handler of that runs, the port isn't read any further.
class SerialLink : public Link
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

    /// The name that the open port was opened by; empty while the link is closed.
    QString openPortName() const { return isOpen() ? m_settings.portName : QString(); }

    /// How the port that was open last was opened.
    const SerialSettings &settings() const { return m_settings; }

    /// From now on what has come in is handed up as soon as the port announces it, in pieces or
    /// not.
    void handUpAtOnce() { m_handsUpAtOnce = true; }

    /// Whether all that was written has left the system, too, as far as it tells.
    bool isDrained() const;

    /// Reads what has come in, as if the port had announced it.
    void receive();

    bool isOpen() const override;
    void close() override;
    void handUp() override;
    QString closedMessage() const override;
    int longestInstruction() const override;
    void write(const QByteArray &block) override;
    qint64 unsentBytes() const override;

private:
    QByteArray readAvailable();
    void onReadyRead();
    void onError(QSerialPort::SerialPortError error);
    void resumeReading();
    OpenFailure failureToOpen() const;
    void reportLoss(const QString &reason);

    QSerialPort m_port;
    SerialSettings m_settings;
    OpenFailure m_failure;
    /// Held while the port is open.
    std::optional<ExactTiming> m_timing;
    ArrivalWait m_wait;
    /// When the first of the bytes that are to be handed up was read.
    std::optional<ArrivalTime> m_firstRead;
    bool m_handsUpAtOnce = false;
    bool m_handsUp = false;
    bool m_isDueMeanwhile = false;
    bool m_failed = false;
    int m_failedReads = 0;
};

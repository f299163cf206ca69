#pragma once

#include "exacttiming.h"
#include "link.h"

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

    /// Drops what is still to be sent or read, and closes the port.
    void close();

    /// The name that the open port was opened by; empty while the link is closed.
    QString openPortName() const { return m_openPortName; }

    /// Gives a frame that arrives in pieces 2 to 7 ms to come in whole, then takes what is there.
    QByteArray readArrived();

    bool isOpen() const override;
    QString closedMessage() const override;
    int longestInstruction() const override;
    void write(const QByteArray &block) override;
    bool isBehind() const override;
    /// Waits for at most 2000 ms.
    void waitForWritten() override;

signals:
    /// Data have come in; never emitted in the middle of a write.
    void arrived();

    /// The open port has failed for good, for the reason given. Emitted once, from the event loop.
    void lost(const QString &reason);

private:
    void writeOut(int milliseconds);
    void onReadyRead();
    void onError(QSerialPort::SerialPortError error);
    void resumeReading();
    void reportLoss(const QString &reason);

    QSerialPort m_port;
    QString m_openPortName;
    /// Held while the port is open.
    std::optional<ExactTiming> m_timing;
    bool m_waitsForWritten = false;
    bool m_arrivedMeanwhile = false;
    bool m_failed = false;
    int m_vainReads = 0;
};

#pragma once

#include "frames/framebuilder.h"
#include "simulator/deviceoptions.h"
#include "simulator/deviceparser.h"
#include "simulator/disturbance.h"
#include "simulator/openwatch.h"
#include "simulator/registerdevice.h"
#include "simulator/transmitter.h"

#include <QElapsedTimer>
#include <QObject>
#include <QQueue>
#include <QSocketNotifier>
#include <QTimer>

class PseudoTerminal;

/// The simulated device at work on its terminal: answers requests, and sends status frames if it is
/// to.
///
/// Like a device on a wire it sends into the void while nobody has the port open: nothing is kept
/// for whoever opens it next.
class DeviceSession : public QObject
{
    Q_OBJECT

public:
    /// CMD of the status frames: 53, 0000, and a counter of 32 bits, big-endian, that goes up by
    /// one from frame to frame. A frame dropped because nobody reads is counted as well.
    static constexpr char statusCommand = 0x53;

    /// The terminal must outlive the session.
    DeviceSession(const DeviceOptions &options, const PseudoTerminal &terminal,
                  QObject *parent = nullptr);

private:
    struct DelayedReply
    {
        qint64 dueMs = 0;
        QByteArray payload;
    };

    void takeBytes();
    void answer(const QVector<QByteArray> &requests);
    void schedule(const QByteArray &reply);
    void waitForDueReply();
    void sendDueReplies();
    void sendReply(const QByteArray &payload);
    void beginChatter();
    void sendStatus();
    void waitForNextStatus();
    void forgetListener();
    QByteArray nextBlock(const QByteArray &payload);

    DeviceOptions m_options;
    FrameLayout m_layout;
    const PseudoTerminal &m_terminal;
    DeviceParser m_parser;
    RegisterDevice m_registers;
    Disturbance m_disturbance;
    Transmitter m_transmitter;
    OpenWatch m_watch;
    QSocketNotifier m_arrival;
    QElapsedTimer m_clock;
    QQueue<DelayedReply> m_delayed;
    QTimer m_replyDue;
    QTimer m_quiet;
    QTimer m_statusDue;
    QElapsedTimer m_sinceChatterBegan;
    qint64 m_statusesSinceChatterBegan = 0;
    quint32 m_statusCounter = 0;
};

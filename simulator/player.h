#pragma once

#include "simulator/openwatch.h"
#include "simulator/playscript.h"
#include "simulator/transmitter.h"

#include <QElapsedTimer>
#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <map>

class PseudoTerminal;

/// Answers on its terminal as a recording says, each reply after the time that it took then.
class Player : public QObject
{
    Q_OBJECT

public:
    /// Everything comes so many times faster than it was recorded. The terminal must outlive the
    /// player.
    Player(PlayScript script, double speed, const PseudoTerminal &terminal,
           QObject *parent = nullptr);

private:
    void takeBytes();
    void schedule(const QVector<PlayScript::Reply> &replies);
    void sendDue();
    void waitForDue();
    void forgetListener();

    PlayScript m_script;
    double m_speed;
    const PseudoTerminal &m_terminal;
    Transmitter m_transmitter;
    OpenWatch m_watch;
    QSocketNotifier m_arrival;
    QElapsedTimer m_clock;
    /// What is to be sent, by its time in ns.
    std::multimap<qint64, QByteArray> m_due;
    QTimer m_timer;
};

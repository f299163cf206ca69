#pragma once

#include <QObject>

/// Turns the signals that ask a program to end (SIGTERM, SIGINT, SIGHUP) into a signal of Qt, in
/// the event loop. A SIGHUP that the program was started to ignore (nohup) stays ignored.
///
/// A program that hasn't ended so many seconds after the first of them is ended by the system,
/// whatever it is waiting for. At most one such object is made, and it stays for the whole run.
/// On Windows they are what a console says: Ctrl+C and Ctrl+Break as SIGINT, its closing as
/// SIGTERM.
class EndSignals : public QObject
{
    Q_OBJECT

public:
    explicit EndSignals(int patienceSeconds, QObject *parent = nullptr);

signals:
    /// The number is the signal's.
    void arrived(int signal);
};

#pragma once

#include "filedescriptor.h"

#include <QObject>

/// Turns the signals that ask a program to end (SIGTERM, SIGINT, SIGHUP) into one of ours, in the
/// event loop. Must be made before any thread.
class ShutdownSignals : public QObject
{
    Q_OBJECT

public:
    explicit ShutdownSignals(QObject *parent = nullptr);

signals:
    void arrived();

private:
    void takeSignal();

    FileDescriptor m_descriptor;
};

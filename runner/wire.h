#pragma once

#include "expectations/receivedframe.h"
#include "runner/runplan.h"

#include <QObject>

/// The way to the device as a run sees it. All times are in ns of the clock that the run goes by.
class Wire : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// What frames look like from now on. The gap is the silence, in ms, that ends a frame without
    /// start bytes or length.
    virtual void setFormat(const FrameLayout &layout, int gapMs) = 0;

    /// Gives a row's frame to the system, and returns when that was.
    virtual qint64 send(const PlannedRow &row) = 0;

    /// Whether something is still waiting to leave the program.
    virtual bool isBehind() const = 0;

    /// Whether the system has sent everything, as far as it tells.
    virtual bool isDrained() const = 0;

signals:
    void frameArrived(const ReceivedFrame &frame);
    /// Bytes that form no frame.
    void strayArrived(const QByteArray &bytes, qint64 timeNs);
    /// The link is lost, for the reason given.
    void lost(const QString &reason);
};

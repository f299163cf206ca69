#pragma once

#include "runner/wire.h"

class Session;
struct LogRecord;

/// The wire of a session: what its records tell, and what is handed to its sender.
class SessionWire : public Wire
{
    Q_OBJECT

public:
    /// The session must outlive the wire.
    explicit SessionWire(Session &session, QObject *parent = nullptr);

    void setFormat(const FrameLayout &layout, int gapMs) override;
    qint64 send(const PlannedRow &row) override;
    bool isBehind() const override;
    bool isDrained() const override;

signals:
    /// What the session has recorded, before it is told as a frame.
    void recorded(const LogRecord &record);

private:
    void pass(const LogRecord &record);

    Session &m_session;
    FrameLayout m_layout;
    qint64 m_sentNs = 0;
};

#include "runner/sessionwire.h"

#include "frames/hextext.h"
#include "session/session.h"

namespace {

QString headerText(StartBytes startBytes)
{
    constexpr int digits = 2;
    return QStringLiteral("0x%1,0x%2")
        .arg(paddedHex(startBytes.first, digits), paddedHex(startBytes.second, digits));
}

} // namespace

SessionWire::SessionWire(Session &session, QObject *parent)
    : Wire(parent)
    , m_session(session)
{
    connect(&m_session.log(), &RecordLog::appended, this, &SessionWire::pass);
    connect(&m_session, &Session::linkFailed, this,
            [this](LinkMode, const QString &, const QString &reason) { emit lost(reason); });
    connect(&m_session, &Session::deviceGone, this,
            [this] { emit lost(tr("the device is gone")); });
}

void SessionWire::setFormat(const FrameLayout &layout, int gapMs)
{
    m_layout = layout;
    const bool hasEnds = layout.withStartBytes && layout.withLength;
    m_session.setHeaderText(headerText(layout.startBytes));
    m_session.format().setStartBytes(layout.withStartBytes);
    m_session.format().setLength(layout.withLength);
    m_session.format().setCrc(layout.withCrc);
    m_session.setFrameGap(hasEnds ? std::nullopt : std::optional(gapMs));
}

qint64 SessionWire::send(const PlannedRow &row)
{
    m_sentNs = ArrivalTime::now().monotonicNs;
    const BlockPart part{row.frame.size(), row.number, row.description};
    m_session.sender().tellFrame(m_session.sender().handOverBlock(row.frame, {part}));
    return m_sentNs;
}

bool SessionWire::isBehind() const
{
    return m_session.sender().isLinkBehind();
}

bool SessionWire::isDrained() const
{
    return !isBehind() && m_session.links().serial().isDrained();
}

void SessionWire::pass(const LogRecord &record)
{
    emit recorded(record);
    switch (record.kind) {
    case LogRecord::Kind::Sent:
        m_sentNs = record.monotonicNs;
        return;
    case LogRecord::Kind::Received:
        emit frameArrived(takenApart(record.bytes, m_layout, record.monotonicNs));
        return;
    case LogRecord::Kind::Stray:
        emit strayArrived(record.bytes, record.monotonicNs);
        return;
    case LogRecord::Kind::Event:
        return;
    }
}

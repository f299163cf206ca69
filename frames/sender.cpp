#include "frames/sender.h"

#include "frames/delaymarker.h"
#include "frames/framesettings.h"
#include "frames/headernotice.h"
#include "frames/link.h"
#include "frames/messages.h"

namespace {

constexpr qint64 mostUnsentBytes = 1048576;

} // namespace

Sender::Sender(FrameSettings &settings, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
{}

void Sender::setLink(Link *link)
{
    m_link = link;
}

bool Sender::isLinkOpen() const
{
    return m_link->isOpen();
}

bool Sender::isLinkBehind() const
{
    return m_link->unsentBytes() > 0;
}

bool Sender::requireOpenLink()
{
    if (isLinkOpen()) {
        return true;
    }
    emit notice(m_link->closedMessage());
    return false;
}

void Sender::sendOne(const CheckedRow &row)
{
    const QString &frameText = row.frameText;
    if (!requireOpenLink()) {
        return;
    }
    if (isDelay(frameText)) {
        tellNothingToSend();
        return;
    }
    const int length = instructionLength(frameText, m_settings.withCrc());
    if (length > m_link->longestInstruction()) {
        emit notice(overlongInstructionWarning(length));
    }
    HeaderNotice header;
    tellFrame(handOverText(frameText, header, partOf(row)));
}

void Sender::sendAll(const QVector<CheckedRow> &rows)
{
    if (!requireOpenLink()) {
        return;
    }
    HeaderNotice header;
    const BatchPlan plan =
        planBatch(rows, m_settings.withCrc(),
                  [this, &header](const QString &text) { return makeFrame(text, header); });
    if (!plan.overlongRows.isEmpty()) {
        emit notice(overlongRowsMessage(plan.overlongRows));
    }
    if (plan.block.isEmpty()) {
        emit notice(Messages::tr("Not thing to send!"));
        return;
    }
    tellBlock(handOverBlock(plan.block, plan.parts));
}

LoopPlan Sender::planLoop(const QVector<CheckedRow> &rows)
{
    HeaderNotice header;
    return ::planLoop(rows, m_settings.withCrc(),
                      [this, &header](const QString &text) { return makeFrame(text, header); });
}

QByteArray Sender::handOverText(const QString &frameText, HeaderNotice &header,
                                const BlockPart &row)
{
    const QByteArray frame = makeFrame(frameText, header);
    if (frame.isEmpty()) {
        tellNothingToSend();
        return {};
    }
    BlockPart part = row;
    part.size = frame.size();
    return handOverBlock(frame, {part});
}

QByteArray Sender::handOverBlock(const QByteArray &block, const QVector<BlockPart> &parts)
{
    if (!isTaken(block)) {
        return {};
    }
    m_handedOver = ArrivalTime::now();
    m_handedOverParts = parts;
    m_link->write(block);
    return block;
}

void Sender::tellFrame(const QByteArray &frame)
{
    if (!frame.isEmpty()) {
        emit handedOver(frame, m_handedOverParts, m_handedOver);
        emit sent(frame, m_handedOver, rowIdAt(m_handedOverParts, 0));
    }
}

void Sender::tellBlock(const QByteArray &block)
{
    if (block.isEmpty()) {
        return;
    }
    emit handedOver(block, m_handedOverParts, m_handedOver);
    // A listener may send something else.
    const QVector<BlockPart> parts = m_handedOverParts;
    int begin = 0;
    for (const QByteArray &frame : splitBlock(block, m_settings.startBytes())) {
        emit sent(frame, m_handedOver, rowIdAt(parts, begin));
        begin += frame.size();
    }
}

bool Sender::isTaken(const QByteArray &block)
{
    // The link may have been closed while a message was shown.
    if (!isLinkOpen()) {
        return false;
    }
    const qint64 unsent = m_link->unsentBytes();
    // Where nothing waits, a block of any size goes.
    if (unsent > 0 && unsent + block.size() > mostUnsentBytes) {
        emit notice(unsentBytesMessage(unsent));
        return false;
    }
    return true;
}

QByteArray Sender::makeFrame(const QString &frameText, HeaderNotice &header)
{
    const FrameLayout layout = m_settings.nextFrameLayout();
    if (header.isNews(m_settings.unreadableHeader())) {
        emit notice(badHeaderMessage());
    }
    return buildFrame(frameText, layout);
}

void Sender::tellNothingToSend()
{
    emit notice(Messages::tr("No thing to send!"));
}

#include "sender.h"

#include "framesettings.h"
#include "hextext.h"
#include "link.h"

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
    return m_link->isBehind();
}

bool Sender::requireOpenLink()
{
    if (isLinkOpen()) {
        return true;
    }
    emit message(m_link->closedMessage());
    return false;
}

void Sender::sendOne(const QString &frameText)
{
    if (!requireOpenLink()) {
        return;
    }
    const int length = instructionLength(frameText, m_settings.withCrc());
    if (length > m_link->longestInstruction()) {
        emit message(overlongInstructionWarning(length));
    }
    sendText(frameText);
}

void Sender::sendAll(const QVector<CheckedRow> &rows)
{
    if (!requireOpenLink()) {
        return;
    }
    const BatchPlan plan = planBatch(rows, m_settings.withCrc(),
                                     [this](const QString &text) { return makeFrame(text); });
    if (!plan.overlongRows.isEmpty()) {
        emit message(overlongRowsMessage(plan.overlongRows));
    }
    if (plan.block.isEmpty()) {
        emit message(QStringLiteral("Not thing to send!"));
        return;
    }
    sendBlock(plan.block);
    m_link->waitForWritten();
}

LoopPlan Sender::planLoop(const QVector<CheckedRow> &rows)
{
    return ::planLoop(rows, m_settings.withCrc(),
                      [this](const QString &text) { return makeFrame(text); });
}

bool Sender::sendText(const QString &frameText)
{
    const QByteArray frame = makeFrame(frameText);
    if (frame.isEmpty()) {
        emit message(QStringLiteral("No thing to send!"));
        return false;
    }
    // A message shown since the link was found open may have outlived the link.
    if (!isLinkOpen()) {
        return false;
    }
    m_link->write(frame);
    m_link->waitForWritten();
    emit handedOver();
    emit sent(formatHexBytes(frame));
    return true;
}

void Sender::sendBlock(const QByteArray &block)
{
    if (!isLinkOpen()) {
        return;
    }
    m_link->write(block);
    emit handedOver();
    const QString startBytes = startBytesText(m_settings.startBytes());
    for (const QString &piece : splitBlockText(formatHexBytes(block), startBytes)) {
        emit sent(piece);
    }
}

QByteArray Sender::makeFrame(const QString &frameText)
{
    return buildFrame(frameText, m_settings.nextFrameLayout());
}

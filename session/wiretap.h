#pragma once

#include "frames/sendplan.h"
#include "links/linkmode.h"
#include "log/framereassembler.h"
#include "recording/recordevent.h"
#include "recording/recordingfacts.h"

#include <QObject>

class DeviceWatch;
class FrameFormat;
class Link;
class LinkPair;
class Receiver;
class Sender;

/// Tells everything that goes over the wire, in both directions and in order, as a recording keeps
/// it. It listens to the links themselves: neither the log nor a message that is being shown comes
/// in between.
class WireTap : public QObject
{
    Q_OBJECT

public:
    /// All must outlive the tap. It must be made before others listen to them, so that it hears of
    /// things as they happen.
    WireTap(LinkPair &links, Sender &sender, Receiver &receiver, DeviceWatch &devices,
            FrameFormat &format, QObject *parent = nullptr);

    /// Whether received frames end with a silence. Then the receiver finds them, and the format
    /// tells what is in them.
    void setEndedBySilence(bool on);

    /// Tells what happens from now on.
    void start();

    /// Tells what has come in of an unfinished frame, and then nothing more.
    void stop();

    /// What a recording that begins now begins with, but for the program's version.
    RecordingHead head() const;

signals:
    void happened(const RecordEvent &event);

private:
    void listenTo(Link &link, LinkMode mode);
    void takeBlock(const QByteArray &block, const QVector<BlockPart> &parts, ArrivalTime time);
    void takeChunk(const QByteArray &chunk, ArrivalTime time);
    void takeRun(const QByteArray &run, ArrivalTime time);
    void tellPieces(const QVector<ReceivedPiece> &pieces, ArrivalTime time);
    void tellLink(LinkMode mode, bool isOpen);
    void tellNote(const QString &text);
    void tellWaiting();
    QString nameOf(LinkMode mode) const;
    QString settingsOf(LinkMode mode) const;

    LinkPair &m_links;
    Receiver &m_receiver;
    FrameFormat &m_format;
    FrameReassembler m_reassembler;
    ArrivalTime m_lastArrival;
    /// Why it is about to be closed.
    QString m_reason;
    bool m_isOn = false;
    bool m_isEndedBySilence = false;
};

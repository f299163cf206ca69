#pragma once

#include "expectations/replycheck.h"
#include "frames/sender.h"
#include "links/linkpair.h"
#include "log/receiver.h"
#include "log/recordlog.h"
#include "session/devicewatch.h"
#include "session/frameformat.h"
#include "session/loopcontrol.h"
#include "session/portreopener.h"
#include "session/receivedheader.h"
#include "session/replymeter.h"
#include "session/wiretap.h"

#include <QObject>

/// What goes on over one link at a time: frames out, the loop, frames in, and the record of both.
/// It is told what a user chooses and tells what happens; it never asks a window.
class Session : public QObject
{
    Q_OBJECT

public:
    /// The types of HID devices come from the device-ID file. The links in the folder are watched
    /// like serial ports; an empty name stands for none.
    Session(const QString &deviceIdFile, const QString &portsFolder, QObject *parent = nullptr);

    /// Both links, and which one is in use.
    LinkPair &links() { return m_links; }

    /// Goes over to that link; the other one is closed.
    void use(LinkMode mode);

    /// The header field's text as typed: the start bytes of both links, in both directions. A text
    /// that can't be read is told where it is used, once.
    void setHeaderText(const QString &text);

    /// What frames are like besides their start bytes.
    FrameFormat &format() { return m_format; }

    /// From now on a run of bytes that so many ms of silence follow is a received frame. Nothing
    /// stands for frames that are found by their start bytes and length.
    void setFrameGap(std::optional<int> gapMs);

    /// Stops the loop and closes the link.
    void endLink(LinkMode mode);

    /// Stops the loop and closes both links.
    void end();

    ReceivedHeader &receivedHeader() { return m_receivedHeader; }
    Sender &sender() { return m_sender; }
    LoopControl &loop() { return m_loop; }
    RecordLog &log() { return m_log; }
    DeviceWatch &devices() { return m_devices; }
    PortReopener &reopener() { return m_reopener; }

    /// How soon rows are answered, and how the loop goes.
    const ReplyMeter &replies() const { return m_replies; }

    /// Everything that goes over the wire, for a recording.
    WireTap &tap() { return m_tap; }

signals:
    /// Something the user must be told; handlers may block.
    void notice(const QString &text);

    /// The open link of that name has failed, for the reason given, and was closed.
    void linkFailed(LinkMode mode, const QString &name, const QString &reason);

    /// The device behind the open link of that name is gone; the link was closed.
    void deviceGone(LinkMode mode, const QString &name);

private:
    void connectLinks();
    void connectRecords();
    void connectNotices();
    void connectReopener();
    void loseLink(LinkMode mode);
    Link &link(LinkMode mode);
    QString linkName(LinkMode mode) const;
    QString faultOf(const QByteArray &frame, ArrivalTime time);
    void recordStray(const QByteArray &bytes, ArrivalTime time);

    FrameFormat m_format;
    ReceivedHeader m_receivedHeader;
    RecordLog m_log;
    LinkPair m_links;
    DeviceWatch m_devices;
    Receiver m_receiver;
    Sender m_sender;
    WireTap m_tap;
    LoopControl m_loop;
    PortReopener m_reopener;
    ReplyMeter m_replies;
    ReplyCheck m_check;
};

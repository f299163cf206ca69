#pragma once

#include "frames/arrivaltime.h"
#include "frames/sendplan.h"

#include <QObject>

class FrameSettings;
class HeaderNotice;
class Link;

/// Sends rows over the active link: one, all checked ones as one block, or what the loop hands it.
class Sender : public QObject
{
    Q_OBJECT

public:
    /// The settings must outlive the sender.
    explicit Sender(FrameSettings &settings, QObject *parent = nullptr);

    /// The link that everything goes to from now on; it must outlive the sender.
    void setLink(Link *link);

    /// Whether the active link is open.
    bool isLinkOpen() const;

    /// Whether what was sent still waits to leave the program, so that a loop should not add more.
    bool isLinkBehind() const;

    /// Whether the active link is open; if not, the user is told.
    bool requireOpenLink();

    /// Sends one row's frame text; a delay row has nothing to send. A text too long for the link is
    /// sent after a warning.
    void sendOne(const CheckedRow &row);
    /// The same for a frame text that belongs to no row.
    void sendOne(const QString &frameText) { sendOne(CheckedRow{0, frameText}); }

    /// Sends the rows' frames in one write, without the pauses of delay rows. Refused, as sending
    /// one row is, where more than 1 MiB would wait for a device that takes too little.
    void sendAll(const QVector<CheckedRow> &rows);

    /// What the loop sends in each pass over the rows.
    LoopPlan planLoop(const QVector<CheckedRow> &rows);

    /// Gives the frame of a frame text to the link. A bad header is told unless the user knows of
    /// it already. Returns the frame, to be told; nothing where there was none, or no way to send
    /// it.
    QByteArray handOverText(const QString &frameText, HeaderNotice &header,
                            const BlockPart &row = {});

    /// Gives a block of frames to the link. Returns it, to be told; nothing where there was no way
    /// to send it. Without parts it counts as one frame of an unknown row.
    QByteArray handOverBlock(const QByteArray &block, const QVector<BlockPart> &parts = {});

    /// Tells of a frame that was handed over.
    void tellFrame(const QByteArray &frame);

    /// Tells of the frames of a block that was handed over, one by one.
    void tellBlock(const QByteArray &block);

signals:
    /// Something the user must be told, emitted before the sender goes on; handlers may block.
    void notice(const QString &text);

    /// One frame that was handed over, when, and the identity of its row (0 where it isn't known),
    /// for the log.
    void sent(const QByteArray &frame, ArrivalTime time, int rowId);

    /// The block that was handed over, and when, for a recording: its frames as they were made, and
    /// their rows. Emitted before the frames are told.
    void handedOver(const QByteArray &block, const QVector<BlockPart> &parts, ArrivalTime time);

private:
    QByteArray makeFrame(const QString &frameText, HeaderNotice &header);
    bool isTaken(const QByteArray &block);
    void tellNothingToSend();

    FrameSettings &m_settings;
    Link *m_link = nullptr;
    ArrivalTime m_handedOver;
    QVector<BlockPart> m_handedOverParts;
};

#pragma once

#include <QObject>

class CheckedLineEdit;
class FrameFormat;
class ReceivedHeader;

/// The field of the serial tab whose text gives the start bytes of both links' frames, in both
/// directions. The HID tab's own field is never read.
class HeaderField : public QObject
{
    Q_OBJECT

public:
    /// Hands the field's text on, now and whenever it changes. All must outlive this.
    HeaderField(CheckedLineEdit &field, FrameFormat &format, ReceivedHeader &received,
                QObject *parent = nullptr);
};

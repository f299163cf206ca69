#pragma once

#include <QObject>

class CheckedLineEdit;
class Session;

/// The field of the serial tab whose text gives the start bytes of both links' frames, in both
/// directions. The HID tab's own field is never read.
class HeaderField : public QObject
{
    Q_OBJECT

public:
    /// Hands the field's text on, now and whenever it changes. Both must outlive this.
    HeaderField(CheckedLineEdit &field, Session &session, QObject *parent = nullptr);
};

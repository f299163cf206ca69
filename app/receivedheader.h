#pragma once

#include "startbytes.h"

#include <QObject>
#include <QTimer>

class QLineEdit;

/// The header field as the receive path reads it: at any moment, and without ever waiting for the
/// user. A text that can't be read is told once, until the field changes.
class ReceivedHeader : public QObject
{
    Q_OBJECT

public:
    /// The field must outlive this.
    explicit ReceivedHeader(const QLineEdit &field, QObject *parent = nullptr);

    /// The start bytes in the field; the fallback for a text that can't be read.
    StartBytes startBytes();

signals:
    /// What came in found the field unreadable. Emitted from the event loop, and not while somebody
    /// is typing in the field; handlers may block.
    void unreadable();

private:
    void onChanged();
    void tellOnce();

    const QLineEdit &m_field;
    bool m_told = false;
    QTimer m_typing;
    QTimer m_notice;
};

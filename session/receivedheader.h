#pragma once

#include "frames/startbytes.h"

#include <QObject>
#include <QTimer>

/// The header text as the receive path reads it: at any moment, and without ever waiting for the
/// user. A text that can't be read is told once, until it changes.
class ReceivedHeader : public QObject
{
    Q_OBJECT

public:
    explicit ReceivedHeader(QObject *parent = nullptr);

    /// The text from now on.
    void setText(const QString &text);

    /// Somebody is typing the text right now.
    void noteTyping();

    /// The start bytes of the text; the fallback for one that can't be read.
    StartBytes startBytes();

signals:
    /// What came in found the text unreadable. Emitted from the event loop, and not while somebody
    /// is typing; handlers may block.
    void unreadable();

private:
    void tellOnce();

    QString m_text;
    bool m_told = false;
    QTimer m_typing;
    QTimer m_notice;
};

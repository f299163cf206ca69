#pragma once

#include "fakeframesettings.h"
#include "fakelink.h"
#include "frames/hextext.h"
#include "frames/sender.h"

#include <QStringList>

/// A sender on a fake link, with all it says in one list.
class SenderBench
{
public:
    SenderBench()
    {
        sender.setLink(&link);
        QObject::connect(&sender, &Sender::notice, &sender,
                         [this](const QString &text) { said.append("message " + text); });
        link.onWrite = [this] { said.append("handed over"); };
        QObject::connect(&sender, &Sender::sent, &sender, [this](const QByteArray &frame) {
            said.append("sent " + formatHexBytes(frame));
        });
    }

    FakeFrameSettings settings;
    FakeLink link;
    Sender sender{settings};
    QStringList said;
};

inline QString lengthWarning(int length)
{
    return QStringLiteral("message Instruction length %1 is out of the maximum range,<br> "
                          "sending errors may occur!")
        .arg(length);
}

inline QString payloadOf(int count)
{
    return QStringLiteral("42").repeated(count);
}

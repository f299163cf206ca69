#pragma once

#include <QByteArray>
#include <QVector>

/// One option of a pcapng block.
struct PcapngOption
{
    quint16 code = 0;
    QByteArray value;
};

/// The options in these bytes, up to the end mark or to the first one that is cut off.
QVector<PcapngOption> parsePcapngOptions(const QByteArray &bytes);

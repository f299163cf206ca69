#pragma once

#include <QByteArray>
#include <QVector>

/// One option of a pcapng block.
struct PcapngOption
{
    quint16 code = 0;
    QByteArray value;
};

/// The options in these bytes, up to the one that ends them or to one that goes beyond them.
QVector<PcapngOption> parsePcapngOptions(const QByteArray &bytes);

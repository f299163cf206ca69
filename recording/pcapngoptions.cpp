#include "recording/pcapngoptions.h"

#include "recording/pcapngformat.h"

#include <QtEndian>

QVector<PcapngOption> parsePcapngOptions(const QByteArray &bytes)
{
    constexpr int headSize = 4;
    constexpr int lastOfWord = 3;
    QVector<PcapngOption> options;
    int position = 0;
    while (position + headSize <= bytes.size()) {
        const auto code = qFromLittleEndian<quint16>(bytes.constData() + position);
        const int length = qFromLittleEndian<quint16>(bytes.constData() + position + 2);
        position += headSize;
        if (code == Pcapng::endOfOptions || length > bytes.size() - position) {
            break;
        }
        options.append({code, bytes.mid(position, length)});
        position += (length + lastOfWord) & ~lastOfWord;
    }
    return options;
}

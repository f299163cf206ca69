#include "frames/reports.h"

QVector<QByteArray> splitIntoReports(const QByteArray &block, int size)
{
    QVector<QByteArray> reports;
    int position = 0;
    do {
        reports.append(block.mid(position, size).leftJustified(size, '\0'));
        position += size;
    } while (position < block.size());
    return reports;
}

#include "logcelldelegate.h"

#include "crccheck.h"

namespace {

enum Column { Header = 1, Length, Cmd, Addr, Data, Crc };

/// What was received is told by its colour.
bool isReceived(const QModelIndex &index)
{
    return index.data(Qt::ForegroundRole).isValid();
}

FrameFields fieldsOf(const QModelIndex &index)
{
    const auto text = [&index](int column) {
        return index.siblingAtColumn(column).data().toString();
    };
    return {text(Header), text(Length), text(Cmd), text(Addr), text(Data), text(Crc)};
}

} // namespace

QString LogCellDelegate::fault(const QModelIndex &index) const
{
    if (index.column() != Crc || !isReceived(index)) {
        return {};
    }
    const QString expected = expectedInsteadOfCrc(fieldsOf(index));
    return expected.isEmpty() ? QString() : tr("The CRC does not fit: %1 expected.").arg(expected);
}

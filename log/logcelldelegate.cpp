#include "log/logcelldelegate.h"

#include "log/crccheck.h"
#include "log/logcolumns.h"

namespace {

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
    return {text(LogColumn::Header), text(LogColumn::Length), text(LogColumn::Cmd),
            text(LogColumn::Addr),   text(LogColumn::Data),   text(LogColumn::Crc)};
}

} // namespace

QString LogCellDelegate::fault(const QModelIndex &index) const
{
    if (index.column() != LogColumn::Crc || !isReceived(index)) {
        return {};
    }
    const QString expected = expectedInsteadOfCrc(fieldsOf(index));
    return expected.isEmpty() ? QString() : tr("The CRC does not fit: %1 expected.").arg(expected);
}

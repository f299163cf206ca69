#pragma once

#include "widgets/plaincelldelegate.h"

/// Paints the cells of the message log; the CRC of a received frame that does not fit is a fault.
class LogCellDelegate : public PlainCellDelegate
{
    Q_OBJECT

public:
    using PlainCellDelegate::PlainCellDelegate;

    QString fault(const QModelIndex &index) const override;
};

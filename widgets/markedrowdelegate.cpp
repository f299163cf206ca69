#include "markedrowdelegate.h"

#include "selectionbar.h"

void MarkedRowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    paintSelectionBar(*painter, option, index);
}

#pragma once

class QModelIndex;
class QPainter;
class QStyleOptionViewItem;

/// Marks a selected row in its first cell; the backgrounds of selected and other rows hardly
/// differ. To be called after the cell is painted; it paints nothing in other cells.
void paintSelectionBar(QPainter &painter, const QStyleOptionViewItem &cell,
                       const QModelIndex &index);

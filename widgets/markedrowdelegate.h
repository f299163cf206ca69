#pragma once

#include <QStyledItemDelegate>

/// Paints and edits cells as any table does, and marks the rows that are selected.
class MarkedRowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};

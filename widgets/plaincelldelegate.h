#pragma once

#include <QStyledItemDelegate>

/// Paints cells of a table in the look of styleTable() that hold nothing but one line of text.
///
/// What comes out is what the style sheet makes of such a cell, at a fraction of the cost: the
/// style works its rules out, and lays the text out, several times a cell. Beyond that, a selected
/// row is marked in its first cell, and a text with a colour of its own keeps it when selected.
class PlainCellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};
